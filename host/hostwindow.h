#pragma once

#include <QObject>
#include <QPointer>

// The host window object a control receives in Show: it takes the control's menu and toolbar
// description and reports the clicks on the control's buttons of the suite's toolbar.
class HostWindow : public QObject
{
    Q_OBJECT

public:
    explicit HostWindow(QObject *parent = nullptr);

    // The menu-bar operation: the suite shows this description's menus and toolbar.
    Q_INVOKABLE void SetMenuBar(QObject *barList);
    QObject *barList() const { return m_barList; }

signals:
    void ToolBarClick(const QString &key);
    void menuBarChanged();

private:
    QPointer<QObject> m_barList;
};
