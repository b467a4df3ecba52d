#include "batch/frmbatchmanager.h"

#include "batch/batchsession.h"
#include "batch/batchtexts.h"

#include "frame/errorbox.h"
#include "frame/logincontext.h"
#include "frame/settingsstore.h"
#include "frame/sysparams.h"

#include "frame/automation/dictionary.h"

#include "grid/gridtexts.h"
#include "grid/spreadgrid.h"

#include <QAction>
#include <QLabel>
#include <QProgressBar>
#include <QSignalBlocker>
#include <QStyle>
#include <QTabBar>
#include <QToolBar>
#include <QVBoxLayout>

namespace {

constexpr int DialogWidth = 1260;
constexpr int DialogHeight = 440;
constexpr int ProgressHeight = 12;

struct ToolButton
{
    const QString &key;
    const QString &label;
    QStyle::StandardPixmap icon;
};

} // namespace

frmBatchManager::frmBatchManager(QWidget *parent)
    : QDialog(parent)
{
    setObjectName(QStringLiteral("frmBatchManager"));
    setWindowTitle(ResString(BatchMsg::WindowTitle));
    setModal(true);

    m_grid = new SpreadGrid(this);
    m_grid->setObjectName(QStringLiteral("vsBatMan"));
    m_session = new BatchSession(*m_grid->cells(), this);

    m_itemLabel = new QLabel(this);
    m_itemLabel->setObjectName(QStringLiteral("lblItem"));
    QFont bold = m_itemLabel->font();
    bold.setBold(true);
    m_itemLabel->setFont(bold);

    // What the balance test found on the current line, in words beside its coloured cells.
    m_balanceNote = new QLabel(this);
    m_balanceNote->setObjectName(QStringLiteral("lblBalance"));
    m_balanceNote->setStyleSheet(QStringLiteral("color: #a00000"));
    m_balanceNote->hide();
    connect(m_grid, &SpreadGrid::currentCellChanged, this, [this](int row) { showBalanceNote(row); });

    m_tabs = new QTabBar(this);
    m_tabs->setObjectName(QStringLiteral("sstBatMan"));
    m_tabs->addTab(QString());
    m_tabs->setDrawBase(false);
    m_tabs->setExpanding(false);

    m_progress = new QProgressBar(this);
    m_progress->setObjectName(QStringLiteral("pbBatMan"));
    m_progress->setTextVisible(false);
    m_progress->setFixedHeight(ProgressHeight);
    m_progress->setRange(0, 1);
    m_progress->setValue(0);
    // Shown only while lines are being read or written.
    m_progress->hide();

    buildToolBar();

    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(6, 0, 6, 6);
    layout->setSpacing(4);
    layout->addWidget(m_toolBar);
    layout->addWidget(m_itemLabel);
    layout->addWidget(m_tabs);
    layout->addWidget(m_grid, 1);
    layout->addWidget(m_balanceNote);
    layout->addWidget(m_progress);
    resize(DialogWidth, DialogHeight);

    connect(m_session, &BatchSession::focusRequested, this, &frmBatchManager::focusCell);
    connect(m_grid, &SpreadGrid::cellsRestored, m_session, &BatchSession::cellsRestored);
    connect(m_grid, &SpreadGrid::pasteRefused, this, [this](int row, int col, const QString &value) {
        tellUser(ResString(GridText::pasteRefused(m_grid->TextMatrix(Grid::HeaderRow, col), row, value)));
    });
    connect(m_session, &BatchSession::progressChanged, this, &frmBatchManager::showProgress);
    connect(m_session, &BatchSession::apportionedChanged, this, [this](bool on) {
        const QSignalBlocker blocker(m_buttons.value(BatchKey::ShareBal));
        m_buttons.value(BatchKey::ShareBal)->setChecked(on);
    });
}

frmBatchManager::~frmBatchManager() = default;

void frmBatchManager::buildToolBar()
{
    m_toolBar = new QToolBar(this);
    m_toolBar->setObjectName(QStringLiteral("tbBatMan"));
    m_toolBar->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    const ToolButton tools[] = {
        {BatchKey::AddNew, BatchKey::AddNewLabel, QStyle::SP_FileIcon},
        {BatchKey::ShareBal, BatchKey::ShareBalLabel, QStyle::SP_ArrowRight},
        {BatchKey::Balance, BatchKey::BalanceLabel, QStyle::SP_DialogApplyButton},
        {BatchKey::Delete, BatchKey::DeleteLabel, QStyle::SP_TrashIcon},
        {BatchKey::Save, BatchKey::SaveLabel, QStyle::SP_DialogSaveButton},
        {BatchKey::Exit, BatchKey::ExitLabel, QStyle::SP_DialogCloseButton},
    };
    for (const ToolButton &tool : tools) {
        QAction *action = m_toolBar->addAction(style()->standardIcon(tool.icon), ResString(tool.label));
        action->setObjectName(tool.key);
        const QString key = tool.key;
        connect(action, &QAction::triggered, this, [this, key] { runButton(key); });
        m_buttons.insert(tool.key, action);
    }
    // Pressed means that the amounts are apportioned.
    m_buttons.value(BatchKey::ShareBal)->setCheckable(true);
}

void frmBatchManager::prepare()
{
    m_session->open();
    const ItemInfo &item = m_session->item();
    m_itemLabel->setText(item.title());
    m_tabs->setTabText(0, batchModeCaption(item, m_session->quantitiesOnly()));
    m_buttons.value(BatchKey::ShareBal)->setEnabled(m_session->apportionOffered());
    m_grid->select(1, m_session->item().batchManaged ? BatCol::BatchNo : BatCol::YtdBegQty);
}

int frmBatchManager::ShowDialog()
{
    prepare();
    return exec();
}

bool frmBatchManager::pressButton(const QString &key)
{
    QAction *action = m_buttons.value(key);
    if (!action || !action->isEnabled())
        return false;
    action->trigger();
    return true;
}

void frmBatchManager::runButton(const QString &key)
{
    if (key == BatchKey::AddNew)
        m_session->addLine();
    else if (key == BatchKey::ShareBal)
        m_session->setApportioned(m_buttons.value(key)->isChecked());
    else if (key == BatchKey::Balance)
        m_session->balanceTest();
    else if (key == BatchKey::Delete)
        m_session->deleteLine(m_grid->row());
    else if (key == BatchKey::Save && m_session->save())
        m_grid->clearHistory();
    else if (key == BatchKey::Exit)
        closeAfterPrompt();
    // A test, a save or a deleted line may have marked or unmarked the line the cursor is on.
    showBalanceNote(m_grid->row());
}

void frmBatchManager::reject()
{
    closeAfterPrompt();
}

void frmBatchManager::closeAfterPrompt()
{
    if (m_session->confirmClose())
        done(m_session->saved() ? Accepted : Rejected);
}

void frmBatchManager::focusCell(int row, int col)
{
    m_grid->select(row, col);
    m_grid->setFocus();
}

void frmBatchManager::showBalanceNote(int row)
{
    const QString note = m_session->balanceNote(row);
    m_balanceNote->setText(note);
    m_balanceNote->setVisible(!note.isEmpty());
}

void frmBatchManager::showProgress(int value, int maximum)
{
    m_progress->setRange(0, std::max(maximum, 1));
    m_progress->setValue(value);
    m_progress->setVisible(value > 0 && value < maximum);
}

QObject *frmBatchManager::BMItemKey() const
{
    return m_session->handover().itemKey;
}

void frmBatchManager::setBMItemKey(QObject *itemKey)
{
    m_session->handover().itemKey = qobject_cast<Dictionary *>(itemKey);
}

int frmBatchManager::CurrentBMStock() const
{
    return m_session->handover().stockId;
}

void frmBatchManager::setCurrentBMStock(int stockId)
{
    m_session->handover().stockId = stockId;
}

int frmBatchManager::CurrentBMSPlace() const
{
    return m_session->handover().spId;
}

void frmBatchManager::setCurrentBMSPlace(int spId)
{
    m_session->handover().spId = spId;
}

int frmBatchManager::CurrentBMItem() const
{
    return m_session->handover().itemId;
}

void frmBatchManager::setCurrentBMItem(int itemId)
{
    m_session->handover().itemId = itemId;
}

int frmBatchManager::CurrentUnitID() const
{
    return m_session->handover().unitId;
}

void frmBatchManager::setCurrentUnitID(int unitId)
{
    m_session->handover().unitId = unitId;
}

int frmBatchManager::CurrentSecUnitID() const
{
    return m_session->handover().secUnitId;
}

void frmBatchManager::setCurrentSecUnitID(int secUnitId)
{
    m_session->handover().secUnitId = secUnitId;
}

QString frmBatchManager::FieldCompose() const
{
    return m_session->handover().fieldCompose;
}

void frmBatchManager::setFieldCompose(const QString &fieldCompose)
{
    m_session->handover().fieldCompose = fieldCompose;
}

int frmBatchManager::LVSColor() const
{
    return int(SettingsStore::rgbNumber(m_session->handover().lockColor));
}

void frmBatchManager::setLVSColor(int rgb)
{
    m_session->handover().lockColor = SettingsStore::colorFromRgbNumber(rgb);
}

bool frmBatchManager::SavedBatMan() const
{
    return m_session->saved();
}

void frmBatchManager::setSavedBatMan(bool saved)
{
    m_session->setSaved(saved);
}

bool frmBatchManager::quantitiesOnly() const
{
    return m_session->handover().quantitiesOnly.value_or(SysParams::toInt(SysParam::AuditChoice) == 0);
}

void frmBatchManager::setQuantitiesOnly(bool quantitiesOnly)
{
    m_session->handover().quantitiesOnly = quantitiesOnly;
}

int frmBatchManager::stockType() const
{
    return m_session->handover().stockType;
}

void frmBatchManager::setStockType(int type)
{
    m_session->handover().stockType = type;
}
