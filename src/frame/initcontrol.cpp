#include "initcontrol.h"

#include "barlist.h"
#include "controlcollection.h"
#include "errorbox.h"
#include "librarystate.h"
#include "logincontext.h"
#include "messages.h"
#include "netcontrol.h"
#include "settingsstore.h"
#include "statuspanels.h"
#include "sysparams.h"
#include "viewtoggles.h"

#include "frame/automation/dispatch.h"
#include "frame/automation/lumoerror.h"
#include "frame/automation/recordset.h"

#include <QApplication>
#include <QIcon>
#include <QKeyEvent>
#include <QToolBar>
#include <QVBoxLayout>

#include <utility>

namespace {

const QString QueryUnload = QStringLiteral("QueryUnload");

// Keys the grid keeps for itself: Page Up, Page Down and the arrows.
bool isGridKey(int key)
{
    switch (key) {
    case Qt::Key_PageUp: case Qt::Key_PageDown: case Qt::Key_Left: case Qt::Key_Up: case Qt::Key_Right:
    case Qt::Key_Down:
        return true;
    default:
        return false;
    }
}

} // namespace

InitControl::InitControl(QWidget *parent)
    : QWidget(parent)
    , m_barList(new BarList(this))
    , m_controls(new ControlCollection(this))
    , m_toolBar(new QToolBar(this))
    , m_statusBar(new StatusPanels(StatusPanelCount, this))
    , m_bodyLayout(new QVBoxLayout)
{
    m_barList->setObjectName(QStringLiteral("BarList"));
    m_toolBar->setObjectName(QStringLiteral("tbICInit"));
    m_toolBar->setIconSize(QSize(20, 20));
    m_statusBar->setObjectName(QStringLiteral("sbICInit"));
    m_statusBar->setPanelText(1, ResString(Msg::Ready));

    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(m_toolBar);
    layout->addLayout(m_bodyLayout, 1);
    layout->addWidget(m_statusBar);

    connect(m_barList, &BarList::ItemClick, this, &InitControl::dispatchCommand);
    connect(m_barList, &BarList::changed, this, &InitControl::rebuildToolBar);

    LibraryState &state = LibraryState::instance();
    state.initialised = true;
    state.createFilters();
}

bool InitControl::showControl(QObject *ParentWnd, bool blnIstest, const QString &dataProgId)
{
    takeLoginContext();
    try {
        SetFormFont(Controls());
        prepareShow();
        if (!blnIstest) {
            setTaskHandle(ExecFunc(EntryTaskId, QString::fromLatin1(EntryFuncCode), 0, 0));
            if (!ParentWnd)
                return false;
            bindHost(ParentWnd);
        }
        LoadSysParams(dataProgId);
        LibraryState::instance().periodOpen = !SysParams::toBool(SysParam::ICClosed);
        m_units = FetchMeasureUnits(dataProgId);
        loadViewSettings();
        showData(blnIstest);
    } catch (const LumoError &error) {
        reportProcedureError(QStringLiteral("Show"), error);
        return false;
    }
    CommitTask(taskHandle());
    return true;
}

InitControl::~InitControl()
{
    LibraryState::instance().releaseFilters();
}

int InitControl::hwnd() const
{
    return int(const_cast<InitControl *>(this)->winId());
}

QObject *InitControl::Controls() const
{
    return m_controls;
}

void InitControl::NotifyMessage(const QString &strMsg, const QVariantList &)
{
    if (strMsg == QueryUnload) {
        beforeUnload();
        saveViewSettings();
    }
}

void InitControl::RefreshToolbar()
{
    if (!m_parentWindow)
        return;
    Dispatch::call(m_parentWindow, QString::fromLatin1(HostMenuBarOperation), {QVariant::fromValue<QObject *>(m_barList)});
}

void InitControl::takeLoginContext()
{
    try {
        m_propsString = GetPropsString();
        ParseProps(m_propsString);
    } catch (const LumoError &) {
        // Without a login context the control still shows and fails at its first data call.
    }
}

void InitControl::bindHost(QObject *parentWnd)
{
    if (m_parentWindow)
        disconnect(m_parentWindow, nullptr, this, nullptr);
    m_parentWindow = parentWnd;
    // The host's toolbar buttons of this control arrive as their keys; like the control's own
    // buttons they run only while enabled and shown.
    connect(parentWnd, SIGNAL(ToolBarClick(QString)), this, SLOT(hostToolBarClick(QString)));
    RefreshToolbar();
    rebuildToolBar();
}

void InitControl::hostToolBarClick(const QString &key)
{
    m_barList->Click(key);
}

void InitControl::dispatchCommand(const QString &key)
{
    try {
        runCommand(key);
    } catch (const LumoError &error) {
        reportProcedureError(commandProcedure(), error);
    }
}

void InitControl::addViewToggles()
{
    for (const ViewToggle &toggle : viewToggles()) {
        BarList::Item item;
        item.key = QString::fromLatin1(toggle.menuKey);
        item.caption = ResString(QString::fromUtf8(toggle.caption));
        item.menu = ResString(QString::fromUtf8(toggle.menu));
        item.checkable = true;
        m_barList->addItem(item);
    }
}

void InitControl::loadViewSettings()
{
    const BarList::Batch oneRedraw(*m_barList);
    for (const ViewToggle &toggle : viewToggles())
        m_barList->setChecked(QString::fromLatin1(toggle.menuKey), SettingsStore::boolValue(*toggle.setting));
    m_loadedStockListIndex = SettingsStore::intValue(Setting::StockListIndex);
    applyViewState();
}

void InitControl::saveViewSettings()
{
    // Only the toggles this control carries: a missing one would read as off and overwrite what
    // the user chose in the other control.
    for (const ViewToggle &toggle : viewToggles()) {
        const QString key = QString::fromLatin1(toggle.menuKey);
        if (m_barList->item(key))
            SettingsStore::setValue(*toggle.setting, m_barList->isChecked(key));
    }
    SettingsStore::setValue(Setting::StockListIndex, stockListIndex());
}

void InitControl::toggleView(const QString &menuKey)
{
    m_barList->setChecked(menuKey, !m_barList->isChecked(menuKey));
    applyViewState();
    RefreshToolbar();
}

void InitControl::applyViewState()
{
    m_barList->setToolbarVisible(m_barList->isChecked(QStringLiteral("mcWToolBar")));
    m_barList->setToolbarLabels(m_barList->isChecked(QStringLiteral("mcWTBLable")));
    m_statusBar->setVisible(m_barList->isChecked(QStringLiteral("mcWStatusBar")));
    applyDefaultStockSetting();
    rebuildToolBar();
}

void InitControl::rebuildToolBar()
{
    // A hosted control shows its buttons on the host's toolbar; alone, on its own.
    m_toolBar->setVisible(!m_parentWindow && m_barList->toolbarVisible());
    // The toolbar owns the actions it made; clear() only takes them off. They go at once, since a
    // scripted host never runs the event loop a deferred delete waits for; only the action whose
    // click led here is still on the stack and waits for its trigger to return.
    const QList<QAction *> previous = m_toolBar->actions();
    m_toolBar->clear();
    for (QAction *action : previous) {
        if (action == m_runningAction)
            action->deleteLater();
        else
            delete action;
    }
    m_toolBar->setToolButtonStyle(m_barList->toolbarLabels() ? Qt::ToolButtonTextUnderIcon : Qt::ToolButtonIconOnly);
    for (const BarList::Item &item : m_barList->items()) {
        if (!item.visible || item.kind == BarList::ItemKind::MenuItem)
            continue;
        if (item.kind == BarList::ItemKind::Separator) {
            m_toolBar->addSeparator();
            continue;
        }
        QAction *action = m_toolBar->addAction(QIcon::fromTheme(item.iconName), item.caption);
        action->setObjectName(item.key);
        action->setEnabled(item.enabled);
        const QString key = item.key;
        connect(action, &QAction::triggered, m_barList, [this, action, key] {
            const QPointer<InitControl> self(this);
            const QPointer<QAction> outer = std::exchange(m_runningAction, action);
            m_barList->Click(key);
            if (self)
                m_runningAction = outer;
        });
    }
}

void InitControl::setStatusText(const QString &text)
{
    m_statusBar->setPanelText(1, ResString(text));
    m_statusBar->repaint();
}

void InitControl::closeHostFrame()
{
    // The key travels up from the control's parent to the frame that holds it.
    QWidget *target = parentWidget() ? parentWidget() : window();
    QKeyEvent press(QEvent::KeyPress, Qt::Key_F4, Qt::ControlModifier);
    QApplication::sendEvent(target, &press);
}

void InitControl::keyPressEvent(QKeyEvent *event)
{
    if (isGridKey(event->key()) || !m_barList->KeyDown(event->key(), int(event->modifiers())))
        QWidget::keyPressEvent(event);
}
