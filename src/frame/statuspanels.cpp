#include "statuspanels.h"

#include <QLabel>

StatusPanels::StatusPanels(int panelCount, QWidget *parent)
    : QStatusBar(parent)
{
    setSizeGripEnabled(false);
    for (int i = 0; i < panelCount; ++i) {
        auto *label = new QLabel(this);
        label->setObjectName(QStringLiteral("panel%1").arg(i + 1));
        label->setContentsMargins(6, 0, 6, 0);
        // The first panel takes the room; the others size to their text.
        if (i == 0)
            addWidget(label, 1);
        else
            addPermanentWidget(label);
        m_panels.append(label);
    }
}

void StatusPanels::setPanelText(int panel, const QString &text)
{
    if (panel >= 1 && panel <= m_panels.size())
        m_panels.at(panel - 1)->setText(text);
}

QString StatusPanels::panelText(int panel) const
{
    return panel >= 1 && panel <= m_panels.size() ? m_panels.at(panel - 1)->text() : QString();
}
