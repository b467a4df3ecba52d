// Opens the batch dialog offscreen with three lines and writes it as a PNG, to look at it
// without a display:   batch_screenshot [file.png]     (default /tmp/batch.png)
#include "fakeservices.h"

#include "batch/frmbatchmanager.h"

#include "frame/sysparams.h"

#include "frame/automation/dictionary.h"

#include <QApplication>
#include <QDate>

int main(int argc, char **argv)
{
    QApplication app(argc, argv);
    const QString file = argc > 1 ? QString::fromLocal8Bit(argv[1]) : QStringLiteral("/tmp/batch.png");

    registerFakeServices();
    FakeWorld &world = FakeWorld::instance();
    world.reset();
    // FQtyDecimal, FLock, FBatchNo, FBillInterID, year opening (qty, sec, amount, diff), received,
    // sent, period opening, FSecUnitID, FStockInDate, FKFDate, FKFPeriod, FSNListID.
    world.detailRows = {
        {2, false, "B2023-11-07", 1, 120, 0, 4560.00, 0, 80, 0, 3040.00, 0, 50, 0, 1900.00, 0, 150, 0, 5700.00, 0,
         0, "2023-11-20", "2023-11-07", 365, 0},
        {2, false, "B2023-12-15", 2, 60, 0, 2286.50, 0, 0, 0, 0, 0, 15, 0, 571.63, 0, 45, 0, 1714.87, 0, 0,
         "2023-12-28", "2023-12-15", 365, 0},
        {2, true, "B2024-01-03", 3, 0, 0, 0, 0, 35.5, 0, 1349.00, 0, 0, 0, 0, 0, 35.5, 0, 1349.00, 0, 0, "2024-01-05",
         "2024-01-03", 365, 12},
    };

    auto params = std::make_unique<Dictionary>();
    params->Add(QStringLiteral("CurrentPeriod"), 1);
    params->Add(QStringLiteral("AuditChoice"), 1);
    params->Add(QStringLiteral("ShareBal"), 1);
    params->Add(QStringLiteral("CPStartDate"), QStringLiteral("01012024"));
    SysParams::replace(std::move(params));

    Dictionary item;
    item.Add(QStringLiteral("ID"), 3057);
    item.Add(QStringLiteral("Name"), QStringLiteral("冷轧板"));
    item.Add(QStringLiteral("Model"), QStringLiteral("1.0mm×1250"));
    item.Add(QStringLiteral("FBM"), true);
    item.Add(QStringLiteral("FKF"), true);
    item.Add(QStringLiteral("Track"), 76);
    item.Add(QStringLiteral("QtyDecimal"), 2);
    item.Add(QStringLiteral("KFPeriod"), 365);

    frmBatchManager dialog;
    dialog.setBMItemKey(&item);
    dialog.setCurrentBMStock(12);
    dialog.setCurrentBMItem(3057);
    dialog.setCurrentUnitID(7);
    dialog.setFieldCompose(QStringLiteral("12|0|1|3057|0"));
    dialog.prepare();
    dialog.show();
    QApplication::processEvents();
    return dialog.grab().save(file) ? 0 : 1;
}
