#pragma once

#include <QMdiSubWindow>
#include <QPointer>

class HostWindow;

// A frame of the suite that holds one control: it owns the host window object handed to the
// control, closes on Ctrl+F4 and tells the control "QueryUnload" before it closes.
class ControlFrame : public QMdiSubWindow
{
    Q_OBJECT

public:
    ControlFrame(QWidget *control, const QString &title, QWidget *parent = nullptr);

    QWidget *control() const { return m_control; }
    HostWindow *hostWindow() const { return m_host; }

protected:
    void closeEvent(QCloseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    QPointer<QWidget> m_control;
    HostWindow *m_host;
    bool m_notified = false;
};
