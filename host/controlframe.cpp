#include "controlframe.h"

#include "hostwindow.h"

#include "frame/automation/dispatch.h"
#include "frame/automation/lumoerror.h"

#include <QCloseEvent>
#include <QKeyEvent>

ControlFrame::ControlFrame(QWidget *control, const QString &title, QWidget *parent)
    : QMdiSubWindow(parent)
    , m_control(control)
    , m_host(new HostWindow(this))
{
    setWidget(control);
    setWindowTitle(title);
    setAttribute(Qt::WA_DeleteOnClose);
}

void ControlFrame::closeEvent(QCloseEvent *event)
{
    if (m_control && !m_notified) {
        try {
            // A Cancel to the control's question about unsaved work keeps the frame open.
            if (Dispatch::hasMember(m_control, QStringLiteral("confirmClose"))
                && !Dispatch::call(m_control, QStringLiteral("confirmClose")).toBool()) {
                event->ignore();
                return;
            }
        } catch (const LumoError &) {
            // A control that cannot answer closes as before.
        }
        m_notified = true;
        try {
            Dispatch::call(m_control, QStringLiteral("NotifyMessage"), {QStringLiteral("QueryUnload"), QVariantList()});
        } catch (const LumoError &) {
            // A control that cannot take the notification still closes.
        }
    }
    QMdiSubWindow::closeEvent(event);
}

void ControlFrame::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_F4 && event->modifiers() == Qt::ControlModifier) {
        close();
        return;
    }
    QMdiSubWindow::keyPressEvent(event);
}
