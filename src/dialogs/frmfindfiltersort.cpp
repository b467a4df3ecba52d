#include "dialogs/frmfindfiltersort.h"

#include "dialogs/dialogtexts.h"

#include "frame/errorbox.h"
#include "frame/logincontext.h"
#include "frame/settingsstore.h"

#include "grid/cellmodel.h"
#include "grid/spreadconsole.h"
#include "grid/spreadgrid.h"

#include <QButtonGroup>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QPushButton>
#include <QRadioButton>
#include <QSignalBlocker>
#include <QTabBar>
#include <QVBoxLayout>

namespace {

constexpr int DialogWidth = 520;
constexpr int DialogHeight = 460;
constexpr int FieldWidth = 150;
constexpr int OperatorWidth = 90;
constexpr int ValueWidth = 200;

// A drop-down list as the user reads it; its position is the code.
QStringList choiceTexts(const QStringList &texts)
{
    QStringList shown;
    for (const QString &text : texts)
        shown.append(ResString(text));
    return shown;
}

QRadioButton *option(const char *name, const QString &text, QWidget *parent)
{
    auto *button = new QRadioButton(ResString(text), parent);
    button->setObjectName(QString::fromLatin1(name));
    return button;
}

QGroupBox *optionFrame(const char *name, const QString &title, QRadioButton *first, QRadioButton *second,
                       QWidget *parent)
{
    auto *frame = new QGroupBox(ResString(title), parent);
    frame->setObjectName(QString::fromLatin1(name));
    auto *layout = new QHBoxLayout(frame);
    layout->addWidget(first);
    layout->addWidget(second);
    auto *group = new QButtonGroup(frame);
    group->addButton(first);
    group->addButton(second);
    return frame;
}

} // namespace

frmFindFilterSort::frmFindFilterSort(QWidget *parent)
    : QDialog(parent)
    , m_lockColor(SettingsStore::colorValue(Setting::LockColor))
{
    setObjectName(QStringLiteral("frmFindFilterSort"));
    setModal(true);

    m_tabs = new QTabBar(this);
    m_tabs->setObjectName(QStringLiteral("tsFFS"));
    m_tabs->addTab(ResString(DialogMsg::FindTab));
    m_tabs->addTab(ResString(DialogMsg::FilterTab));
    m_tabs->addTab(ResString(DialogMsg::SortTab));
    m_tabs->setExpanding(false);
    connect(m_tabs, &QTabBar::currentChanged, this, &frmFindFilterSort::tabChosen);

    m_grid = new SpreadGrid(this);
    m_grid->setObjectName(QStringLiteral("vsFFS"));

    m_blur = option("optBlur", DialogMsg::MatchBlur, this);
    m_exact = option("optMatch", DialogMsg::MatchExact, this);
    m_caseYes = option("optUL_Yes", DialogMsg::CaseYes, this);
    m_caseNo = option("optUL_No", DialogMsg::CaseNo, this);
    m_blur->setChecked(true);
    m_caseNo->setChecked(true);
    m_matchFrame = optionFrame("fraMatch", DialogMsg::MatchFrame, m_blur, m_exact, this);
    m_caseFrame = optionFrame("fraUL", DialogMsg::CaseFrame, m_caseYes, m_caseNo, this);

    auto *ok = new QPushButton(ResString(DialogMsg::OkButton), this);
    ok->setObjectName(QStringLiteral("cmdOK"));
    ok->setDefault(true);
    auto *cancel = new QPushButton(ResString(DialogMsg::CancelButton), this);
    cancel->setObjectName(QStringLiteral("cmdCancel"));
    connect(ok, &QPushButton::clicked, this, &frmFindFilterSort::confirm);
    connect(cancel, &QPushButton::clicked, this, &QDialog::reject);

    auto *options = new QHBoxLayout;
    options->addWidget(m_matchFrame);
    options->addWidget(m_caseFrame);
    auto *buttons = new QHBoxLayout;
    buttons->addStretch(1);
    buttons->addWidget(ok);
    buttons->addWidget(cancel);
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(m_tabs);
    layout->addWidget(m_grid, 1);
    layout->addLayout(options);
    layout->addLayout(buttons);
    resize(DialogWidth, DialogHeight);
}

frmFindFilterSort::~frmFindFilterSort() = default;

void frmFindFilterSort::setCurrentMode(int mode)
{
    m_session.mode = FfsMode(qBound(0, mode, int(FfsMode::CheckItem)));
}

void frmFindFilterSort::setCurrentAction(int action)
{
    m_session.action = FfsAction(qBound(0, action, int(FfsAction::Sort)));
}

int frmFindFilterSort::LVSColor() const
{
    return int(SettingsStore::rgbNumber(m_lockColor));
}

void frmFindFilterSort::setLVSColor(int rgb)
{
    m_lockColor = SettingsStore::colorFromRgbNumber(rgb);
}

void frmFindFilterSort::prepare()
{
    m_session.open();
    const QSignalBlocker blocker(m_tabs);
    m_tabs->setCurrentIndex(int(m_session.action));
    layoutLines();
}

int frmFindFilterSort::ShowDialog()
{
    prepare();
    return exec();
}

void frmFindFilterSort::tabChosen(int index)
{
    readLines();
    const QVector<FfsCondition> kept = m_session.lines();
    m_session.action = FfsAction(index);
    layoutLines();
    // The lines are kept across tabs: what was chosen on one is still there on coming back.
    const bool sorting = m_session.action == FfsAction::Sort;
    CellModel &cells = *m_grid->cells();
    for (int i = 0; i < kept.size(); ++i) {
        const int row = i + Grid::FirstDataRow;
        if (sorting) {
            cells.setText(row, OperatorCol, choiceTexts(DialogMsg::Directions).value(kept.at(i).direction));
        } else {
            cells.setText(row, OperatorCol, choiceTexts(DialogMsg::Operators).value(kept.at(i).op));
            cells.setText(row, ValueCol, kept.at(i).value);
        }
    }
}

void frmFindFilterSort::layoutLines()
{
    const bool sorting = m_session.action == FfsAction::Sort;
    setWindowTitle(ResString(DialogMsg::ActionTitles.at(int(m_session.action))));
    m_matchFrame->setVisible(m_session.action == FfsAction::Find);
    m_caseFrame->setVisible(m_session.action == FfsAction::Find);

    CellModel &cells = *m_grid->cells();
    const QVector<FfsCondition> &lines = m_session.lines();
    cells.reset(int(lines.size()) + Grid::FirstDataRow, sorting ? ValueCol : ValueCol + 1);
    cells.setText(Grid::HeaderRow, FieldCol, ResString(sorting ? DialogMsg::SortFieldHeader : DialogMsg::FieldHeader));
    cells.setText(Grid::HeaderRow, OperatorCol,
                  ResString(sorting ? DialogMsg::DirectionHeader : DialogMsg::OperatorHeader));
    cells.setColStyle(FieldCol, CellStyle().setLocked(true).setBackColor(m_lockColor));
    const QStringList choices = choiceTexts(sorting ? DialogMsg::Directions : DialogMsg::Operators);
    cells.setColStyle(OperatorCol, CellStyle().setType(Grid::CellType::List).setComboList(choices));
    cells.setColWidth(FieldCol, FieldWidth);
    // Sorting has no value column: the direction takes its room.
    cells.setColWidth(OperatorCol, sorting ? OperatorWidth + ValueWidth : OperatorWidth);
    if (!sorting) {
        cells.setText(Grid::HeaderRow, ValueCol, ResString(DialogMsg::ValueHeader));
        cells.setColWidth(ValueCol, ValueWidth);
    }
    for (int i = 0; i < lines.size(); ++i) {
        const int row = i + Grid::FirstDataRow;
        cells.setText(row, FieldCol, lines.at(i).display);
        cells.setText(row, OperatorCol, choiceTexts(DialogMsg::Operators).first());
        if (sorting)
            continue;
        if (!lines.at(i).choices.isEmpty())
            cells.setCellStyle(row, ValueCol,
                               CellStyle().setType(Grid::CellType::List).setComboList(lines.at(i).choices));
        else if (lines.at(i).type == FfsValueType::Date)
            cells.setCellStyle(row, ValueCol, CellStyle().setType(Grid::CellType::Date));
    }
    SpreadConsole::moveToCell(*m_grid, Grid::FirstDataRow, OperatorCol);
}

void frmFindFilterSort::readLines()
{
    const bool sorting = m_session.action == FfsAction::Sort;
    const CellModel &cells = *m_grid->cells();
    QVector<FfsCondition> &lines = m_session.lines();
    for (int i = 0; i < lines.size(); ++i) {
        const int row = i + Grid::FirstDataRow;
        const QStringList choices = choiceTexts(sorting ? DialogMsg::Directions : DialogMsg::Operators);
        const int chosen = int(qMax(qsizetype(0), choices.indexOf(cells.text(row, OperatorCol))));
        if (sorting) {
            lines[i].direction = chosen;
        } else {
            lines[i].op = chosen;
            lines[i].value = cells.text(row, ValueCol);
        }
    }
    m_session.fuzzy = m_blur->isChecked();
    m_session.caseSensitive = m_caseYes->isChecked();
}

void frmFindFilterSort::confirm()
{
    readLines();
    const FfsSession::Outcome outcome = m_session.accept();
    if (!outcome.accepted) {
        tellUser(outcome.message);
        SpreadConsole::moveToCell(*m_grid, outcome.refusedLine + Grid::FirstDataRow, ValueCol);
        return;
    }
    accept();
    switch (m_session.action) {
    case FfsAction::Find:
        emit Find(!m_session.matcher().isEmpty());
        break;
    case FfsAction::Filter:
        emit Filter(outcome.expression);
        break;
    case FfsAction::Sort:
        emit Sort(outcome.expression);
        break;
    }
}
