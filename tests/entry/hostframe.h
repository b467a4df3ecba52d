#pragma once

#include <QKeyEvent>
#include <QWidget>

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
    void keyPressEvent(QKeyEvent *event) override
    {
        if (event->key() != Qt::Key_F4 || event->modifiers() != Qt::ControlModifier)
            return QWidget::keyPressEvent(event);
        m_closedByKey = true;
        close();
    }

private:
    QList<QObject *> m_menuBars;
    bool m_closedByKey = false;
};
