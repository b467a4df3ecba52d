// The entry control's suites on a temporary account set, in one executable.
#include "privatesettings.h"
#include "tst_commandsdb.h"
#include "tst_totalsdb.h"

#include <QApplication>
#include <QTest>

int main(int argc, char **argv)
{
    const PrivateSettings settings;
    QApplication app(argc, argv);
    int failed = 0;
    {
        TestTotalsOnAccountSet suite;
        failed += QTest::qExec(&suite, argc, argv);
    }
    {
        TestCommandsOnAccountSet suite;
        failed += QTest::qExec(&suite, argc, argv);
    }
    return failed;
}
