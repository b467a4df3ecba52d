#pragma once

#include <QWidget>

class BarList;

// The host's child window as the suite shows a control in it: it takes the menu and toolbar
// description, reports its toolbar's clicks by key, and closes on Ctrl+F4.
class HostFrame : public QWidget
{
    Q_OBJECT
public:
    Q_INVOKABLE void SetMenuBar(QObject *barList) { m_menuBars.append(barList); }
    int menuBarsReceived() const { return int(m_menuBars.size()); }
    bool closedByKey() const { return m_closedByKey; }

signals:
    void ToolBarClick(const QString &key);

protected:
    void keyPressEvent(QKeyEvent *event) override;

private:
    QList<QObject *> m_menuBars;
    bool m_closedByKey = false;
};
