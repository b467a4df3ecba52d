// The entry control's suites on a temporary account set, in one executable.
#include "privatesettings.h"
#include "suiterunner.h"
#include "tst_commandsdb.h"
#include "tst_totalsdb.h"

#include <QApplication>

int main(int argc, char **argv)
{
    const PrivateSettings settings;
    QApplication app(argc, argv);
    return runSuites<TestTotalsOnAccountSet, TestCommandsOnAccountSet>(argc, argv);
}
