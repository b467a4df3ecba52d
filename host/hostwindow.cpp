#include "hostwindow.h"

HostWindow::HostWindow(QObject *parent)
    : QObject(parent)
{
}

void HostWindow::SetMenuBar(QObject *barList)
{
    m_barList = barList;
    emit menuBarChanged();
}
