#include "suitewindow.h"
#include "frame/automation/progids.h"

#include "controlframe.h"
#include "logindialog.h"
#include "hostwindow.h"

#include "frame/barlist.h"
#include "frame/errorbox.h"

#include "frame/automation/componentregistry.h"
#include "frame/automation/dispatch.h"
#include "frame/automation/lumoerror.h"

#include <QAction>
#include <QCloseEvent>
#include <QIcon>
#include <QLabel>
#include <QMdiArea>
#include <QMenu>
#include <QMenuBar>
#include <QStatusBar>
#include <QToolBar>

namespace {

struct SuiteControl
{
    const char *caption;
    QLatin1StringView progId;
};

const SuiteControl suiteControls[] = {
    {"存货初始数据录入", ProgId::ICInitCtl},
    {"期初成本调整", ProgId::ICInitAdjCtl},
};

} // namespace

SuiteWindow::SuiteWindow(const AccountSession &session, QWidget *parent)
    : QMainWindow(parent)
    , m_mdi(new QMdiArea(this))
    , m_controlToolBar(addToolBar(QStringLiteral("控件工具栏")))
    , m_accountSet(new QLabel(this))
    , m_user(new QLabel(this))
{
    setWindowTitle(QStringLiteral("澄枫供应链管理 - 存货核算"));
    m_mdi->setViewMode(QMdiArea::SubWindowView);
    m_mdi->setObjectName(QStringLiteral("mdiArea"));
    setCentralWidget(m_mdi);
    m_controlToolBar->setObjectName(QStringLiteral("controlToolBar"));
    m_controlToolBar->setIconSize(QSize(20, 20));
    m_controlToolBar->setToolButtonStyle(Qt::ToolButtonTextUnderIcon);
    buildSuiteMenu();
    statusBar()->addPermanentWidget(m_accountSet);
    statusBar()->addPermanentWidget(m_user);
    showSession(session);
    connect(m_mdi, &QMdiArea::subWindowActivated, this, [this] { redrawControlBars(); });
    resize(1280, 800);
}

SuiteWindow::~SuiteWindow()
{
    // Frames still open are hidden while the main window's layout is already gone; they must not
    // redraw the menus then.
    disconnect(m_mdi, nullptr, this, nullptr);
}

void SuiteWindow::closeEvent(QCloseEvent *event)
{
    m_mdi->closeAllSubWindows();
    if (!m_mdi->subWindowList().isEmpty()) {
        event->ignore();
        return;
    }
    QMainWindow::closeEvent(event);
}

void SuiteWindow::buildSuiteMenu()
{
    m_systemMenu = menuBar()->addMenu(QStringLiteral("系统(&S)"));
    for (const SuiteControl &control : suiteControls) {
        const QString progId = control.progId;
        m_systemMenu->addAction(QString::fromUtf8(control.caption), this, [this, progId] { openControl(progId); });
    }
    m_systemMenu->addSeparator();
    m_systemMenu->addAction(QStringLiteral("切换账套(&A)..."), this, &SuiteWindow::switchAccountSet)
        ->setObjectName(QStringLiteral("switchAccountSet"));
    m_systemMenu->addAction(QStringLiteral("退出(&X)"), QKeySequence::Quit, this, &QWidget::close);
}

void SuiteWindow::showSession(const AccountSession &session)
{
    m_accountSet->setText(QStringLiteral("账套：%1").arg(session.accountSet));
    m_user->setText(QStringLiteral("用户：%1").arg(session.userName));
    m_session = session;
}

void SuiteWindow::switchAccountSet()
{
    m_mdi->closeAllSubWindows();
    if (!m_mdi->subWindowList().isEmpty())
        return;
    LoginDialog login(m_session.accountSet, m_session.userName, this);
    if (login.exec() != QDialog::Accepted)
        return;
    const AccountSession session = login.session();
    AccountSetup::publish(session);
    showSession(session);
}

QWidget *SuiteWindow::openControl(const QString &progId)
{
    QWidget *control = nullptr;
    try {
        control = qobject_cast<QWidget *>(CreateObject(progId).release());
    } catch (const LumoError &error) {
        tellUser(error.description());
        return nullptr;
    }
    if (!control) {
        tellUser(QStringLiteral("\"%1\" 不是控件").arg(progId));
        return nullptr;
    }
    QString caption = progId;
    for (const SuiteControl &c : suiteControls) {
        if (progId.compare(c.progId, Qt::CaseInsensitive) == 0)
            caption = QString::fromUtf8(c.caption);
    }
    auto *frame = new ControlFrame(control, caption);
    m_mdi->addSubWindow(frame);
    connect(frame->hostWindow(), &HostWindow::menuBarChanged, this, [this, frame] {
        if (m_mdi->activeSubWindow() == frame)
            redrawControlBars();
    });
    frame->showMaximized();
    bool shown = false;
    try {
        shown = Dispatch::call(control, QStringLiteral("Show"), {QVariant::fromValue<QObject *>(frame->hostWindow()), false})
                    .toBool();
    } catch (const LumoError &error) {
        tellUser(error.description());
    }
    if (!shown) {
        frame->close();
        return nullptr;
    }
    redrawControlBars();
    return control;
}

ControlFrame *SuiteWindow::frameOf(const QWidget *control) const
{
    for (QMdiSubWindow *window : m_mdi->subWindowList()) {
        auto *frame = qobject_cast<ControlFrame *>(window);
        if (frame && frame->control() == control)
            return frame;
    }
    return nullptr;
}

bool SuiteWindow::pressHostKey(const QString &key)
{
    QList<QAction *> drawn = m_controlToolBar->isVisible() ? m_controlToolBar->actions() : QList<QAction *>();
    drawn += m_systemMenu->actions();
    for (const QAction *menu : std::as_const(m_controlMenus))
        drawn += menu->menu()->actions();
    for (QAction *action : std::as_const(drawn)) {
        if (action->objectName() == key && action->isEnabled()) {
            action->trigger();
            return true;
        }
    }
    return false;
}

ControlFrame *SuiteWindow::activeFrame() const
{
    return qobject_cast<ControlFrame *>(m_mdi->activeSubWindow());
}

void SuiteWindow::redrawControlBars()
{
    // A command pressed on these bars may redraw them: what it was pressed on goes later.
    for (QAction *menu : std::as_const(m_controlMenus)) {
        menuBar()->removeAction(menu);
        menu->menu()->deleteLater();
    }
    m_controlMenus.clear();
    const QList<QAction *> buttons = m_controlToolBar->actions();
    m_controlToolBar->clear();
    for (QAction *button : buttons)
        button->deleteLater();

    ControlFrame *frame = activeFrame();
    auto *bars = frame ? qobject_cast<BarList *>(frame->hostWindow()->barList()) : nullptr;
    if (!bars) {
        m_controlToolBar->hide();
        return;
    }
    for (const QString &menuName : bars->menus()) {
        auto *menu = new QMenu(menuName, this);
        for (const BarList::Item &item : bars->items()) {
            if (item.kind != BarList::ItemKind::MenuItem || item.menu != menuName || !item.visible || !item.drawn)
                continue;
            QAction *action = menu->addAction(item.caption);
            action->setObjectName(item.key);
            action->setShortcut(item.shortcut);
            action->setShortcutContext(Qt::WidgetWithChildrenShortcut);
            action->setEnabled(item.enabled);
            action->setCheckable(item.checkable);
            action->setChecked(item.checked);
            const QString key = item.key;
            connect(action, &QAction::triggered, bars, [bars, key] { bars->Click(key); });
        }
        m_controlMenus.append(menuBar()->addMenu(menu));
    }
    m_controlToolBar->setVisible(bars->toolbarVisible());
    m_controlToolBar->setToolButtonStyle(bars->toolbarLabels() ? Qt::ToolButtonTextUnderIcon : Qt::ToolButtonIconOnly);
    HostWindow *host = frame->hostWindow();
    for (const BarList::Item &item : bars->items()) {
        if (!item.visible || item.kind == BarList::ItemKind::MenuItem)
            continue;
        if (item.kind == BarList::ItemKind::Separator) {
            m_controlToolBar->addSeparator();
            continue;
        }
        QAction *action = m_controlToolBar->addAction(QIcon::fromTheme(item.iconName), item.caption);
        action->setObjectName(item.key);
        action->setEnabled(item.enabled);
        const QString key = item.key;
        connect(action, &QAction::triggered, host, [host, key] { emit host->ToolBarClick(key); });
    }
}
