// The entry control's domain suites in one executable: the balance-group rule, the row check,
// the save script and the change bookkeeping.
#include "tst_balancecheck.h"
#include "tst_changebook.h"
#include "tst_rowcheck.h"
#include "tst_savescript.h"

#include <QApplication>
#include <QTest>

int main(int argc, char **argv)
{
    QApplication app(argc, argv);
    int failed = 0;
    {
        TestBalanceCheck suite;
        failed += QTest::qExec(&suite, argc, argv);
    }
    {
        TestRowCheck suite;
        failed += QTest::qExec(&suite, argc, argv);
    }
    {
        TestSaveScript suite;
        failed += QTest::qExec(&suite, argc, argv);
    }
    {
        TestChangeBook suite;
        failed += QTest::qExec(&suite, argc, argv);
    }
    return failed;
}
