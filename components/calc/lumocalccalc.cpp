#include "lumocalccalc.h"

#include "calcdialog.h"

#include <QApplication>

bool LumoCALCCalc::Show()
{
    CalcDialog dialog(QApplication::activeWindow());
    if (dialog.exec() != QDialog::Accepted)
        return false;
    m_value = dialog.result();
    return true;
}
