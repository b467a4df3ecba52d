#pragma once

#include "lumoicinitial_global.h"

#include <QStatusBar>
#include <QVector>

class QLabel;

// A status bar of numbered panels (counted from 1), as the controls and the status class write it.
class LUMOICINITIAL_EXPORT StatusPanels : public QStatusBar
{
    Q_OBJECT

public:
    explicit StatusPanels(int panelCount, QWidget *parent = nullptr);

    Q_INVOKABLE void setPanelText(int panel, const QString &text);
    Q_INVOKABLE QString panelText(int panel) const;
    int panelCount() const { return int(m_panels.size()); }

private:
    QVector<QLabel *> m_panels;
};
