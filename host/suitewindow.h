#pragma once

#include "accountsession.h"

#include <QMainWindow>
#include <QPointer>

class ControlFrame;
class QCloseEvent;
class QLabel;
class QMdiArea;
class QMdiSubWindow;
class QMenu;
class QToolBar;

// The suite's main window: frames that host the controls, the suite's menus, and the active
// control's menus and toolbar drawn from its BarList.
class SuiteWindow : public QMainWindow
{
    Q_OBJECT

public:
    explicit SuiteWindow(const AccountSession &session, QWidget *parent = nullptr);
    ~SuiteWindow() override;

    // Creates the control, puts it in a new frame and shows it with the frame's host window.
    // Null (and the frame closed) when the control cannot be made or refuses to show.
    QWidget *openControl(const QString &progId);
    ControlFrame *frameOf(const QWidget *control) const;
    QMdiArea *mdiArea() const { return m_mdi; }
    // Triggers the toolbar button or control menu entry drawn for `key`, or the suite's own menu
    // entry of that name, as a click does; false when there is no such visible, enabled command.
    bool pressHostKey(const QString &key);
    // Closes every frame (each may keep its edits and refuse) and logs in to another account set;
    // the controls opened afterwards work on it.
    void switchAccountSet();

protected:
    // Closing the suite (or 退出) closes every frame first; a frame kept open keeps the suite open.
    void closeEvent(QCloseEvent *event) override;

private:
    void buildSuiteMenu();
    void showSession(const AccountSession &session);
    void redrawControlBars();
    ControlFrame *activeFrame() const;

    QMdiArea *m_mdi;
    QToolBar *m_controlToolBar;
    QLabel *m_accountSet;
    QLabel *m_user;
    QMenu *m_systemMenu = nullptr;
    QList<QAction *> m_controlMenus;
    QPointer<ControlFrame> m_shownFrame;
    AccountSession m_session;
};
