#include "tst_dataservice.h"
#include "tst_demodata.h"
#include "tst_initialdata.h"
#include "tst_ledgerdata.h"
#include "tst_localservices.h"
#include "tst_schema.h"
#include "tst_taskmutex.h"

#include <QApplication>
#include <QTest>

// Runs every suite of the middle tier; the exit code counts the suites that failed.
int main(int argc, char *argv[])
{
    QApplication app(argc, argv);
    int failed = 0;
    const auto run = [&](QObject &&suite) { failed += QTest::qExec(&suite, argc, argv) != 0 ? 1 : 0; };
    run(TestSchema());
    run(TestDemoData());
    run(TestDataService());
    run(TestInitialData());
    run(TestLedgerData());
    run(TestTaskMutex());
    run(TestLocalServices());
    return failed;
}
