#include "hostframe.h"

#include <QKeyEvent>

void HostFrame::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_F4 && event->modifiers() == Qt::ControlModifier) {
        m_closedByKey = true;
        close();
        return;
    }
    QWidget::keyPressEvent(event);
}
