// The grid's suites in one executable: number texts, the cell model, the grid widget.
#include "suiterunner.h"
#include "tst_cellmodel.h"
#include "tst_numberformat.h"
#include "tst_spreadgrid.h"

#include <QApplication>

int main(int argc, char **argv)
{
    QApplication app(argc, argv);
    return runSuites<TestNumberFormat, TestCellModel, TestSpreadGrid>(argc, argv);
}
