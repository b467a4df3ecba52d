// Every suite of the middle tier in one executable.
#include "suiterunner.h"
#include "tst_dataservice.h"
#include "tst_demodata.h"
#include "tst_initialdata.h"
#include "tst_ledgerdata.h"
#include "tst_localservices.h"
#include "tst_schema.h"
#include "tst_taskmutex.h"

#include <QApplication>

int main(int argc, char *argv[])
{
    QApplication app(argc, argv);
    return runSuites<TestSchema, TestDemoData, TestDataService, TestInitialData, TestLedgerData, TestTaskMutex,
                     TestLocalServices>(argc, argv);
}
