// The batch dialog's suites in one executable: its rules, then the dialog end to end.
#include "tst_batchdialog.h"
#include "tst_batchrules.h"

#include <QApplication>
#include <QTest>

int main(int argc, char **argv)
{
    QApplication app(argc, argv);
    int failed = 0;
    {
        TestBatchRules suite;
        failed += QTest::qExec(&suite, argc, argv);
    }
    {
        TestBatchDialog suite;
        failed += QTest::qExec(&suite, argc, argv);
    }
    return failed;
}
