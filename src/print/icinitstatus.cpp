#include "icinitstatus.h"

#include "frame/statuspanels.h"

#include <QProgressBar>
#include <QStatusBar>

ICInitStatus::ICInitStatus(QObject *parent)
    : QObject(parent)
{
}

void ICInitStatus::setMPBMaxRadix(int maximum)
{
    m_maxRadix = maximum;
    if (auto *bar = qobject_cast<QProgressBar *>(m_progressBar.data()))
        bar->setMaximum(maximum);
}

void ICInitStatus::setProgressBar(QObject *progressBar)
{
    m_progressBar = progressBar;
    if (auto *bar = qobject_cast<QProgressBar *>(progressBar))
        bar->setMaximum(m_maxRadix);
}

void ICInitStatus::SetStatusBarMessage(short nPanel, const QString &sMsg)
{
    if (auto *panels = qobject_cast<StatusPanels *>(m_statusBar.data()))
        panels->setPanelText(nPanel, sMsg);
    else if (auto *bar = qobject_cast<QStatusBar *>(m_statusBar.data()))
        bar->showMessage(sMsg);
}

void ICInitStatus::SetPBarProcessing(int nPbValue)
{
    if (auto *bar = qobject_cast<QProgressBar *>(m_progressBar.data())) {
        bar->setValue(qBound(bar->minimum(), nPbValue, bar->maximum()));
        bar->repaint();
    }
}
