#pragma once

#include "lumoicinitial_global.h"

#include <QPointer>
#include <QVariantList>
#include <QWidget>

#include <memory>

class BarList;
class QAction;
class ControlCollection;
class Recordset;
class QToolBar;
class QVBoxLayout;
class StatusPanels;

// What both controls share towards their host: the paging properties, the window handle and child
// controls, the close notification, the menu and toolbar description handed to the host window,
// the host toolbar's clicks, the view toggles with their settings, and the key routing.
//
// The host window is any object with a method "SetMenuBar(QObject*)" that shows a BarList and a
// signal "ToolBarClick(QString)" raised for the control's buttons on the host's toolbar.
class LUMOICINITIAL_EXPORT InitControl : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(int mlngPerPageSize READ mlngPerPageSize WRITE setMlngPerPageSize)
    Q_PROPERTY(int mlngPageIndex READ mlngPageIndex WRITE setMlngPageIndex)
    Q_PROPERTY(int mTotalPages READ mTotalPages WRITE setMTotalPages)
    Q_PROPERTY(bool mBlsIsNewData READ mBlsIsNewData WRITE setMBlsIsNewData)
    Q_PROPERTY(int hwnd READ hwnd)
    Q_PROPERTY(QObject *Controls READ Controls)

public:
    static constexpr int DefaultPageSize = 500;
    static constexpr int StatusPanelCount = 3;
    static inline const char *HostMenuBarOperation = "SetMenuBar";

    explicit InitControl(QWidget *parent = nullptr);
    ~InitControl() override;

    int mlngPerPageSize() const { return m_perPageSize; }
    void setMlngPerPageSize(int size) { m_perPageSize = size; }
    int mlngPageIndex() const { return m_pageIndex; }
    void setMlngPageIndex(int index) { m_pageIndex = index; }
    int mTotalPages() const { return m_totalPages; }
    void setMTotalPages(int pages) { m_totalPages = pages; }
    bool mBlsIsNewData() const { return m_isNewData; }
    void setMBlsIsNewData(bool isNew) { m_isNewData = isNew; }
    int hwnd() const;
    QObject *Controls() const;

    // "QueryUnload" (exactly so) saves the view settings; every other text is ignored.
    Q_INVOKABLE void NotifyMessage(const QString &strMsg, const QVariantList &Params);
    // Asked by the host before it closes the control's frame: false keeps the frame open (the
    // user cancelled the question about unsaved work).
    Q_INVOKABLE virtual bool confirmClose() { return true; }
    // Hands the menu and toolbar description to the host window again, if there is one.
    Q_INVOKABLE void RefreshToolbar();

    BarList *barList() const { return m_barList; }
    QObject *parentWindow() const { return m_parentWindow; }
    QString propsString() const { return m_propsString; }
    qint32 taskHandle() const { return m_taskHandle; }
    StatusPanels *statusPanels() const { return m_statusBar; }
    // The measure units read when the control was shown.
    Recordset *measureUnits() const { return m_units.get(); }
    void setStatusText(const QString &text);

signals:
    void LogicEvents(QString &ActionName, QString &ExtInfo);

protected:
    // Runs the command of a menu or toolbar key; unknown keys do nothing.
    virtual void runCommand(const QString &key) = 0;
    // Runs when the host's frame is about to close, before the view settings are saved.
    virtual void beforeUnload() {}
    // The name under which errors of the command procedure are reported.
    virtual QString commandProcedure() const { return QStringLiteral("DoAction"); }

    // The steps every control's Show takes: the login context, the form font, the task of the
    // network mutex and the host window (unless testing), the system parameters and measure units
    // of the data service `dataProgId`, the view settings; then showData() loads what the control
    // shows. False without a host window (unless testing) or when a step failed.
    bool showControl(QObject *ParentWnd, bool blnIstest, const QString &dataProgId);
    // Before the host is bound: what the control lays out from the login context.
    virtual void prepareShow() {}
    virtual void showData(bool blnIstest) {}

    // Show's first step: the property string, kept and parsed; errors are ignored.
    void takeLoginContext();
    void setTaskHandle(qint32 handle) { m_taskHandle = handle; }
    // Keeps the host window, hands it the BarList and listens to its toolbar.
    void bindHost(QObject *parentWnd);

    // Adds the view toggles' menu items, unchecked, for a control that does not declare them itself.
    void addViewToggles();
    // View settings ("bShowToolBar", ...): loaded at Show, saved at "QueryUnload".
    void loadViewSettings();
    void saveViewSettings();
    // A view toggle: inverts the menu item's state, applies it and redraws the host's menus.
    void toggleView(const QString &menuKey);
    void applyViewState();
    virtual void applyDefaultStockSetting() {}
    // A control without a warehouse list hands back the position it read.
    virtual int stockListIndex() const { return m_loadedStockListIndex; }

    // Sends Ctrl+F4 to the host: the frame holding the control closes.
    void closeHostFrame();

    void keyPressEvent(QKeyEvent *event) override;

    QVBoxLayout *bodyLayout() const { return m_bodyLayout; }
    QToolBar *toolBar() const { return m_toolBar; }
    void rebuildToolBar();

private slots:
    void dispatchCommand(const QString &key);
    void hostToolBarClick(const QString &key);

private:

    int m_perPageSize = DefaultPageSize;
    int m_pageIndex = 1;
    int m_totalPages = 0;
    bool m_isNewData = false;
    int m_loadedStockListIndex = 0;
    QString m_propsString;
    qint32 m_taskHandle = 0;
    QPointer<QObject> m_parentWindow;
    BarList *m_barList = nullptr;
    ControlCollection *m_controls = nullptr;
    QToolBar *m_toolBar = nullptr;
    // The toolbar action whose trigger is running, if any.
    QPointer<QAction> m_runningAction;
    StatusPanels *m_statusBar = nullptr;
    QVBoxLayout *m_bodyLayout = nullptr;
    std::unique_ptr<Recordset> m_units;
};
