#include "tst_filterparser.h"
#include "tst_readstatement.h"
#include "tst_scriptexecutor.h"
#include "tst_scriptparser.h"

#include <QCoreApplication>
#include <QTest>

// The module's suites run one after the other in one executable; the exit code is non-zero
// when any of them failed.
int main(int argc, char *argv[])
{
    QCoreApplication app(argc, argv);
    int failures = 0;
    {
        ScriptParserTest test;
        failures += QTest::qExec(&test, argc, argv);
    }
    {
        ReadStatementTest test;
        failures += QTest::qExec(&test, argc, argv);
    }
    {
        ScriptExecutorTest test;
        failures += QTest::qExec(&test, argc, argv);
    }
    {
        FilterParserTest test;
        failures += QTest::qExec(&test, argc, argv);
    }
    return failures == 0 ? 0 : 1;
}
