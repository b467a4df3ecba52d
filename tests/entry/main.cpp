// The entry control's domain suites in one executable: the balance-group rule, the row check,
// the save script and the change bookkeeping.
#include "suiterunner.h"
#include "tst_balancecheck.h"
#include "tst_changebook.h"
#include "tst_rowcheck.h"
#include "tst_savescript.h"

#include <QApplication>

int main(int argc, char **argv)
{
    QApplication app(argc, argv);
    return runSuites<TestBalanceCheck, TestRowCheck, TestSaveScript, TestChangeBook>(argc, argv);
}
