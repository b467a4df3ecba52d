#include "itemlookupdialog.h"

#include "componenttexts.h"

#include <QCoreApplication>
#include <QDialogButtonBox>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTableView>
#include <QVBoxLayout>

namespace {

// Long enough that a code typed in one go is one query, short enough to feel immediate.
constexpr int DebounceMs = 200;

bool isListKey(int key)
{
    return key == Qt::Key_Up || key == Qt::Key_Down || key == Qt::Key_PageUp || key == Qt::Key_PageDown;
}

} // namespace

ItemLookupDialog::ItemLookupDialog(ItemLookupModel::PageSource source, const QString &pattern,
                                   const QString &caption, QWidget *parent)
    : QDialog(parent)
    , m_model(std::move(source))
    , m_search(new QLineEdit(pattern, this))
    , m_view(new QTableView(this))
    , m_status(new QLabel(this))
{
    setWindowTitle(caption.isEmpty() ? ComponentText::ItemLookUpCaption : caption);
    setObjectName(QStringLiteral("frmItemLookUp"));
    m_search->setObjectName(QStringLiteral("txtSearch"));
    m_status->setObjectName(QStringLiteral("lblStatus"));
    m_search->setPlaceholderText(ComponentText::SearchHint);
    m_search->setClearButtonEnabled(true);
    // Text the caller hands over is offered, and replaced by the first key typed.
    m_search->selectAll();
    m_search->installEventFilter(this);
    auto *label = new QLabel(ComponentText::SearchLabel, this);
    label->setBuddy(m_search);

    m_view->setObjectName(QStringLiteral("vsLookUp"));
    m_view->setModel(&m_model);
    m_view->setSelectionBehavior(QAbstractItemView::SelectRows);
    m_view->setSelectionMode(QAbstractItemView::SingleSelection);
    m_view->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_view->setAlternatingRowColors(true);
    m_view->verticalHeader()->hide();
    m_view->horizontalHeader()->setStretchLastSection(true);
    m_view->setFocusProxy(m_search);
    connect(m_view, &QTableView::doubleClicked, this, &ItemLookupDialog::accept);

    auto *buttons = new QDialogButtonBox(this);
    buttons->addButton(ComponentText::OkButton, QDialogButtonBox::AcceptRole)->setDefault(true);
    buttons->addButton(ComponentText::CancelButton, QDialogButtonBox::RejectRole);
    connect(buttons, &QDialogButtonBox::accepted, this, &ItemLookupDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &ItemLookupDialog::reject);

    auto *searchRow = new QHBoxLayout;
    searchRow->addWidget(label);
    searchRow->addWidget(m_search, 1);
    auto *layout = new QVBoxLayout(this);
    layout->addLayout(searchRow);
    layout->addWidget(m_view, 1);
    auto *bottom = new QHBoxLayout;
    bottom->addWidget(m_status, 1);
    bottom->addWidget(buttons);
    layout->addLayout(bottom);
    resize(640, 420);

    m_debounce.setSingleShot(true);
    m_debounce.setInterval(DebounceMs);
    connect(&m_debounce, &QTimer::timeout, this, &ItemLookupDialog::refresh);
    connect(m_search, &QLineEdit::textChanged, &m_debounce, qOverload<>(&QTimer::start));
    connect(&m_model, &QAbstractItemModel::rowsInserted, this, &ItemLookupDialog::updateStatus);
    refresh();
    m_view->setColumnWidth(ItemLookupModel::Name, 160);
    m_view->setColumnWidth(ItemLookupModel::Model, 150);
}

void ItemLookupDialog::accept()
{
    // Enter right after typing picks from the list of what was typed, not the one before.
    if (m_debounce.isActive()) {
        m_debounce.stop();
        refresh();
    }
    const QModelIndex current = m_view->currentIndex();
    if (!current.isValid())
        return;
    m_chosen = m_model.record(current.row());
    QDialog::accept();
}

bool ItemLookupDialog::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_search && event->type() == QEvent::KeyPress) {
        auto *key = static_cast<QKeyEvent *>(event);
        if (isListKey(key->key())) {
            if (m_debounce.isActive()) {
                m_debounce.stop();
                refresh();
            }
            QKeyEvent forwarded(QEvent::KeyPress, key->key(), key->modifiers());
            QCoreApplication::sendEvent(m_view, &forwarded);
            return true;
        }
    }
    return QDialog::eventFilter(watched, event);
}

void ItemLookupDialog::refresh()
{
    m_model.setPattern(m_search->text().trimmed());
    if (m_model.rowCount() > 0)
        m_view->setCurrentIndex(m_model.index(0, 0));
    updateStatus();
}

void ItemLookupDialog::updateStatus()
{
    const int rows = m_model.rowCount();
    m_status->setText((m_model.atEnd() ? ComponentText::FoundCount : ComponentText::FoundMore).arg(rows));
}
