// The grid's suites in one executable: number texts, the cell model, the grid widget.
#include "tst_cellmodel.h"
#include "tst_numberformat.h"
#include "tst_spreadgrid.h"

#include <QApplication>
#include <QTest>

int main(int argc, char **argv)
{
    QApplication app(argc, argv);
    int failed = 0;
    {
        TestNumberFormat suite;
        failed += QTest::qExec(&suite, argc, argv);
    }
    {
        TestCellModel suite;
        failed += QTest::qExec(&suite, argc, argv);
    }
    {
        TestSpreadGrid suite;
        failed += QTest::qExec(&suite, argc, argv);
    }
    return failed;
}
