#include "calcdialog.h"

#include "calctexts.h"

#include <QDialogButtonBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMetaEnum>
#include <QPushButton>
#include <QVBoxLayout>

#include <span>

namespace {

using K = CalcDialog::Key;

struct KeypadButton
{
    K key;
    const char *caption;
    int row;
    int col;
    int rowSpan = 1;
};

const KeypadButton keypad[] = {
    {K::MemoryClear, "MC", 0, 0}, {K::MemoryRecall, "MR", 0, 1}, {K::MemoryAdd, "M+", 0, 2},
    {K::MemorySubtract, "M-", 0, 3},
    {K::Clear, "C", 1, 0},        {K::ClearEntry, "CE", 1, 1},   {K::Backspace, "←", 1, 2},  {K::Divide, "÷", 1, 3},
    {K::Open, "(", 2, 0},         {K::Close, ")", 2, 1},         {K::Percent, "%", 2, 2},    {K::Times, "×", 2, 3},
    {K::Digit7, "7", 3, 0},       {K::Digit8, "8", 3, 1},        {K::Digit9, "9", 3, 2},     {K::Minus, "-", 3, 3},
    {K::Digit4, "4", 4, 0},       {K::Digit5, "5", 4, 1},        {K::Digit6, "6", 4, 2},     {K::Plus, "+", 4, 3},
    {K::Digit1, "1", 5, 0},       {K::Digit2, "2", 5, 1},        {K::Digit3, "3", 5, 2},     {K::Equals, "=", 5, 3, 2},
    {K::Sign, "±", 6, 0},         {K::Digit0, "0", 6, 1},        {K::Point, ".", 6, 2},
};

// The keyboard's keys without Ctrl; the digits are taken by their range.
const std::pair<int, K> plainKeys[] = {
    {Qt::Key_Period, K::Point},       {Qt::Key_Comma, K::Point},        {Qt::Key_Plus, K::Plus},
    {Qt::Key_Minus, K::Minus},        {Qt::Key_Asterisk, K::Times},     {Qt::Key_multiply, K::Times},
    {Qt::Key_Slash, K::Divide},       {Qt::Key_division, K::Divide},    {Qt::Key_ParenLeft, K::Open},
    {Qt::Key_ParenRight, K::Close},   {Qt::Key_Percent, K::Percent},    {Qt::Key_F9, K::Sign},
    {Qt::Key_Equal, K::Equals},       {Qt::Key_Return, K::Equals},      {Qt::Key_Enter, K::Equals},
    {Qt::Key_Backspace, K::Backspace}, {Qt::Key_Delete, K::Clear},
};

const std::pair<int, K> controlKeys[] = {
    {Qt::Key_L, K::MemoryClear}, {Qt::Key_R, K::MemoryRecall}, {Qt::Key_P, K::MemoryAdd},
    {Qt::Key_Q, K::MemorySubtract},
};

constexpr int ButtonWidth = 56;
constexpr int ButtonHeight = 38;
constexpr int TapeWidth = 220;

} // namespace

CalcDialog::CalcDialog(QWidget *parent)
    : QDialog(parent)
{
    setObjectName(QStringLiteral("frmCalc"));
    setWindowTitle(CalcText::Title);
    // The keys go to the dialog itself, never to a button, so Enter evaluates instead of
    // pressing whichever button has the focus.
    setFocusPolicy(Qt::StrongFocus);

    m_expressionLine = new QLineEdit(this);
    m_expressionLine->setObjectName(QStringLiteral("txtExpression"));
    m_display = new QLineEdit(this);
    m_display->setObjectName(QStringLiteral("txtDisplay"));
    for (QLineEdit *line : {m_expressionLine, m_display}) {
        line->setReadOnly(true);
        line->setFocusPolicy(Qt::NoFocus);
        line->setAlignment(Qt::AlignRight);
    }
    m_expressionLine->setFrame(false);
    // The expression above the display reads as a caption, not as a second field.
    QPalette captionColours = m_expressionLine->palette();
    captionColours.setColor(QPalette::Base, captionColours.color(QPalette::Window));
    captionColours.setColor(QPalette::Text, captionColours.color(QPalette::PlaceholderText));
    m_expressionLine->setPalette(captionColours);
    QFont big = m_display->font();
    big.setPointSizeF(big.pointSizeF() * 2);
    m_display->setFont(big);
    m_memoryMark = new QLabel(this);
    m_memoryMark->setObjectName(QStringLiteral("lblMemory"));
    m_memoryMark->setFixedWidth(m_memoryMark->fontMetrics().horizontalAdvance(CalcText::MemoryMark) * 2);

    auto *displayRow = new QHBoxLayout;
    displayRow->addWidget(m_memoryMark);
    displayRow->addWidget(m_display, 1);

    auto *calculator = new QVBoxLayout;
    calculator->addWidget(m_expressionLine);
    calculator->addLayout(displayRow);
    calculator->addWidget(buildKeypad());

    auto *tapeTitle = new QLabel(CalcText::Tape, this);
    m_tape = new QListWidget(this);
    m_tape->setObjectName(QStringLiteral("lstTape"));
    m_tape->setFocusPolicy(Qt::NoFocus);
    m_tape->setFixedWidth(TapeWidth);
    auto *tape = new QVBoxLayout;
    tape->addWidget(tapeTitle);
    tape->addWidget(m_tape, 1);

    auto *body = new QHBoxLayout;
    body->addLayout(calculator);
    body->addLayout(tape);

    auto *buttons = new QDialogButtonBox(this);
    QPushButton *ok = buttons->addButton(CalcText::Ok, QDialogButtonBox::AcceptRole);
    ok->setObjectName(QStringLiteral("cmdOK"));
    ok->setToolTip(CalcText::OkTip);
    QPushButton *cancel = buttons->addButton(CalcText::Cancel, QDialogButtonBox::RejectRole);
    cancel->setObjectName(QStringLiteral("cmdCancel"));
    for (QPushButton *button : {ok, cancel}) {
        button->setFocusPolicy(Qt::NoFocus);
        button->setAutoDefault(false);
    }
    connect(ok, &QPushButton::clicked, this, &CalcDialog::acceptResult);
    connect(cancel, &QPushButton::clicked, this, &QDialog::reject);

    auto *layout = new QVBoxLayout(this);
    layout->addLayout(body);
    layout->addWidget(buttons);
    layout->setSizeConstraint(QLayout::SetFixedSize);
    refresh();
}

QWidget *CalcDialog::buildKeypad()
{
    auto *pad = new QWidget(this);
    auto *grid = new QGridLayout(pad);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setSpacing(4);
    const QMetaEnum keyNames = QMetaEnum::fromType<Key>();
    for (const KeypadButton &spec : keypad) {
        auto *button = new QPushButton(QString::fromUtf8(spec.caption), pad);
        button->setObjectName(QStringLiteral("cmd") + QLatin1String(keyNames.valueToKey(int(spec.key))));
        button->setFocusPolicy(Qt::NoFocus);
        button->setAutoDefault(false);
        button->setMinimumSize(ButtonWidth, ButtonHeight * spec.rowSpan);
        button->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
        const Key key = spec.key;
        connect(button, &QPushButton::clicked, this, [this, key] { press(key); });
        grid->addWidget(button, spec.row, spec.col, spec.rowSpan, 1);
    }
    return pad;
}

void CalcDialog::press(Key key)
{
    if (key >= Key::Digit0 && key <= Key::Digit9) {
        m_session.inputDigit(QChar(u'0' + (int(key) - int(Key::Digit0))));
    } else {
        switch (key) {
        case Key::Point: m_session.inputDigit(u'.'); break;
        case Key::Plus: m_session.inputOperator(u'+'); break;
        case Key::Minus: m_session.inputOperator(u'-'); break;
        case Key::Times: m_session.inputOperator(u'×'); break;
        case Key::Divide: m_session.inputOperator(u'÷'); break;
        case Key::Open: m_session.openParenthesis(); break;
        case Key::Close: m_session.closeParenthesis(); break;
        case Key::Percent: m_session.percent(); break;
        case Key::Sign: m_session.toggleSign(); break;
        case Key::Equals: m_session.evaluate(); break;
        case Key::Clear: m_session.clearAll(); break;
        case Key::ClearEntry: m_session.clearEntry(); break;
        case Key::Backspace: m_session.backspace(); break;
        case Key::MemoryClear: m_session.memoryClear(); break;
        case Key::MemoryRecall: m_session.memoryRecall(); break;
        case Key::MemoryAdd: m_session.memoryAdd(); break;
        case Key::MemorySubtract: m_session.memorySubtract(); break;
        default: break;
        }
    }
    refresh();
}

void CalcDialog::acceptResult()
{
    if (m_session.finish())
        accept();
    else
        refresh();
}

void CalcDialog::keyPressEvent(QKeyEvent *event)
{
    const int key = event->key();
    const bool control = event->modifiers().testFlag(Qt::ControlModifier);
    if (!control && key >= Qt::Key_0 && key <= Qt::Key_9)
        return press(Key(int(Key::Digit0) + key - Qt::Key_0));
    const std::span<const std::pair<int, Key>> keys =
        control ? std::span<const std::pair<int, Key>>(controlKeys) : std::span<const std::pair<int, Key>>(plainKeys);
    for (const auto &[qtKey, calcKey] : keys) {
        if (qtKey == key)
            return press(calcKey);
    }
    QDialog::keyPressEvent(event); // Esc closes without a result
}

void CalcDialog::refresh()
{
    m_display->setText(m_session.display());
    m_display->end(false); // a long expression shows its end, where the typing is
    QPalette palette = m_display->palette();
    palette.setColor(QPalette::Text, m_session.error().isEmpty() ? QPalette().color(QPalette::Text) : Qt::red);
    m_display->setPalette(palette);
    m_expressionLine->setText(m_session.expressionLine());
    m_memoryMark->setText(m_session.hasMemory() ? CalcText::MemoryMark : QString());
    m_tape->clear();
    m_tape->addItems(m_session.tape());
    m_tape->scrollToBottom();
}
