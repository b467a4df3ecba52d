// The script module's suites in one executable.
#include "suiterunner.h"
#include "tst_filterparser.h"
#include "tst_scriptexecutor.h"
#include "tst_scriptparser.h"

#include <QCoreApplication>

int main(int argc, char *argv[])
{
    QCoreApplication app(argc, argv);
    return runSuites<ScriptParserTest, ScriptExecutorTest, FilterParserTest>(argc, argv);
}
