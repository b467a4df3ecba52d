#pragma once

#include "frame/lumoicinitial_global.h"

#include <QObject>
#include <QPointer>

// Lets a host hand its own status bar and progress bar to the library's dialogs.
class LUMOICINITIAL_EXPORT ICInitStatus : public QObject
{
    Q_OBJECT
    Q_PROPERTY(int mPBMaxRadix READ mPBMaxRadix WRITE setMPBMaxRadix)
    Q_PROPERTY(QObject *ICSStatusBar READ statusBar WRITE setStatusBar)
    Q_PROPERTY(QObject *ICSProgressBar READ progressBar WRITE setProgressBar)

public:
    Q_INVOKABLE explicit ICInitStatus(QObject *parent = nullptr);

    int mPBMaxRadix() const { return m_maxRadix; }
    void setMPBMaxRadix(int maximum);
    QObject *statusBar() const { return m_statusBar; }
    void setStatusBar(QObject *statusBar) { m_statusBar = statusBar; }
    QObject *progressBar() const { return m_progressBar; }
    void setProgressBar(QObject *progressBar);

    // Writes the text into panel `nPanel` (counted from 1) of the status bar.
    Q_INVOKABLE void SetStatusBarMessage(short nPanel, const QString &sMsg);
    Q_INVOKABLE void SetPBarProcessing(int nPbValue);

private:
    int m_maxRadix = 100;
    QPointer<QObject> m_statusBar;
    QPointer<QObject> m_progressBar;
};
