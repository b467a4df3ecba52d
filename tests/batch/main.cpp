// The batch dialog's suites in one executable: its rules, then the dialog end to end.
#include "suiterunner.h"
#include "tst_batchdialog.h"
#include "tst_batchrules.h"

#include <QApplication>

int main(int argc, char **argv)
{
    QApplication app(argc, argv);
    return runSuites<TestBatchRules, TestBatchDialog>(argc, argv);
}
