#include "democompany.h"

#include "db/sqlrun.h"
#include "db/transaction.h"
#include "demovolume.h"
#include "dialect/sqldialect.h"
#include "openingline.h"

#include <QStringList>

namespace {

const QString Profile = QStringLiteral("t_SystemProfile");

// Rights masks of the demo users: the demonstrator holds everything, the clerk may import and
// export but not print.
constexpr qint64 AllRights = 0x7FFFFFFF;
constexpr qint64 ImportRight = 32;
constexpr qint64 ExportRight = 16;
constexpr int EntryObjectType = 1099;
constexpr int EntryObjectId = 10;
constexpr int AdjustObjectType = 1002;
constexpr int AdjustObjectId = 16;

enum Unit { Piece = 1, Box, Carton, Kilogram, Gram, Tonne, Metre, Centimetre, Litre, Barrel };
enum Warehouse {
    RawMaterials = 1,
    SemiFinished,
    Finished,
    FinishedOne,
    FinishedTwo,
    Consigned,
    InTransit,
    Inspection,
    Scrap
};
enum Place { ShelfA = 1, ShelfB, ShelfC };
enum Account {
    RawMaterialAcct = 1,
    CostDiffAcct,
    GoodsAcct,
    ProcessingAcct,
    SuppliesAcct,
    ImpairmentAcct,
    PayablesAcct
};
enum AuxProp { RedS = 1, RedM, BlueL, BlueXL, FirstGrade, SecondGrade };
constexpr int LaptopSerialList = 1;
constexpr int LaptopSerialCount = 5;

struct UnitRow
{
    int id;
    int group;
    const char *number;
    const char *name;
    double coefficient;
    bool standard;
};
const UnitRow units[] = {
    {Piece, 1, "1001", "个", 1, true},     {Box, 1, "1002", "盒", 10, false},
    {Carton, 1, "1003", "箱", 100, false}, {Kilogram, 2, "2001", "千克", 1, true},
    {Gram, 2, "2002", "克", 0.001, false}, {Tonne, 2, "2003", "吨", 1000, false},
    {Metre, 3, "3001", "米", 1, true},     {Centimetre, 3, "3002", "厘米", 0.01, false},
    {Litre, 4, "4001", "升", 1, true},     {Barrel, 4, "4002", "桶", 200, false},
};

struct WarehouseRow
{
    int id;
    int parent;
    const char *number;
    const char *name;
    int type;
};
const WarehouseRow warehouses[] = {
    {RawMaterials, 0, "01", "原材料仓", 500},
    {SemiFinished, 0, "02", "半成品仓", 500},
    {Finished, 0, "03", "成品仓", 500},
    {FinishedOne, Finished, "03.01", "成品一库", 500},
    {FinishedTwo, Finished, "03.02", "成品二库", 500},
    {Consigned, 0, "04", "代管仓", 502},
    {InTransit, 0, "05", "在途仓", 20291},
    {Inspection, 0, "06", "待检仓", 20293},
    {Scrap, 0, "07", "废品仓", 501},
};

struct PlaceRow
{
    int id;
    int stock;
    const char *number;
    const char *name;
};
const PlaceRow places[] = {
    {ShelfA, RawMaterials, "01.A", "A区货架"},
    {ShelfB, RawMaterials, "01.B", "B区货架"},
    {ShelfC, FinishedTwo, "03.02.C", "C区货架"},
};

struct AccountRow
{
    int id;
    const char *number;
    const char *name;
    int dc;
};
const AccountRow accounts[] = {
    {RawMaterialAcct, "1403", "原材料", 1}, {CostDiffAcct, "1404", "材料成本差异", 1},
    {GoodsAcct, "1405", "库存商品", 1},     {ProcessingAcct, "1408", "委托加工物资", 1},
    {SuppliesAcct, "1411", "周转材料", 1},  {ImpairmentAcct, "1471", "存货跌价准备", -1},
    {PayablesAcct, "2202", "应付账款", -1},
};

struct ItemRow
{
    int id;
    const char *number;
    const char *name;
    const char *model;
    int erpClass;
    int unitGroup;
    int unit;
    int secUnit;
    double secCoefficient;
    int track;
    bool batch;
    bool shelfLife;
    int shelfDays;
    double planPrice;
    int account;
    int auxClass;
};
enum Item {
    SteelPlate = 1,
    RoundSteel,
    CopperWire,
    AluProfile,
    LubeOil,
    EpoxyGlue,
    Screw,
    Nut,
    ComponentKit,
    MotorHousing,
    Rotor,
    MotorSmall,
    MotorLarge,
    WorkShirt,
    Gloves,
    Laptop,
    Phantom,
    ConsignedCopper
};
const ItemRow items[] = {
    {SteelPlate, "1.01.001", "钢板", "Q235 8mm", 1, 2, Kilogram, Tonne, 1000, 76, true, false, 0, 0, RawMaterialAcct,
     0},
    {RoundSteel, "1.01.002", "圆钢", "Φ20", 1, 2, Kilogram, 0, 0, 77, false, false, 0, 0, RawMaterialAcct, 0},
    {CopperWire, "1.02.001", "铜线", "BV 2.5mm²", 1, 3, Metre, 0, 0, 78, false, false, 0, 0, RawMaterialAcct, 0},
    {AluProfile, "1.02.002", "铝型材", "6063-T5", 1, 3, Metre, 0, 0, 79, false, false, 0, 0, RawMaterialAcct, 0},
    {LubeOil, "1.03.001", "润滑油", "L-HM 46#", 1, 4, Litre, Barrel, 200, 76, false, true, 365, 0, RawMaterialAcct, 0},
    {EpoxyGlue, "1.03.002", "环氧树脂胶", "E-44", 1, 2, Kilogram, 0, 0, 80, true, true, 180, 0, RawMaterialAcct, 0},
    {Screw, "1.04.001", "螺钉", "M6×20", 1, 1, Piece, Carton, 100, 81, false, false, 0, 0.12, RawMaterialAcct, 0},
    {Nut, "1.04.002", "螺母", "M6", 1, 1, Piece, 0, 0, 81, false, false, 0, 0.05, RawMaterialAcct, 0},
    {ComponentKit, "1.05.001", "电子元件套件", "KIT-A", 1, 1, Piece, 0, 0, 20308, true, false, 0, 0, RawMaterialAcct,
     0},
    {MotorHousing, "2.01.001", "电机壳体", "YE3-100", 2, 1, Piece, 0, 0, 76, false, false, 0, 0, RawMaterialAcct, 0},
    {Rotor, "2.01.002", "转子组件", "YE3-R100", 2, 1, Piece, 0, 0, 77, false, false, 0, 0, RawMaterialAcct, 0},
    {MotorSmall, "3.01.001", "三相异步电动机", "YE3-100L-2 3kW", 2, 1, Piece, 0, 0, 76, false, false, 0, 0, GoodsAcct,
     0},
    {MotorLarge, "3.01.002", "三相异步电动机", "YE3-132M-4 7.5kW", 2, 1, Piece, 0, 0, 78, false, false, 0, 0, GoodsAcct,
     0},
    {WorkShirt, "3.02.001", "工装T恤", "纯棉", 3, 1, Piece, 0, 0, 76, false, false, 0, 0, ProcessingAcct, 1},
    {Gloves, "3.02.002", "劳保手套", "棉纱", 1, 1, Piece, Box, 10, 76, false, false, 0, 0, SuppliesAcct, 2},
    {Laptop, "3.03.001", "笔记本电脑", "ThinkPad E14", 1, 1, Piece, 0, 0, 78, false, false, 0, 0, SuppliesAcct, 0},
    {Phantom, "9.01.001", "虚拟件", "PH-01", 5, 1, Piece, 0, 0, 76, false, false, 0, 0, RawMaterialAcct, 0},
    {ConsignedCopper, "4.01.001", "客供铜材", "T2", 1, 2, Kilogram, 0, 0, 76, false, false, 0, 0, RawMaterialAcct, 0},
};

const ItemRow &itemRow(int id)
{
    return items[id - 1];
}

QString text(const char *utf8)
{
    return QString::fromUtf8(utf8);
}

} // namespace

DemoCompany::DemoCompany(const QSqlDatabase &db, const SqlDialect &dialect)
    : m_db(db)
    , m_dialect(dialect)
{
}

void DemoCompany::insert(const QString &table, const QStringList &columns, const QVariantList &values)
{
    QStringList marks;
    for (qsizetype i = 0; i < columns.size(); ++i)
        marks.append(QStringLiteral("?"));
    SqlRun::exec(m_db,
                 QStringLiteral("INSERT INTO %1 (%2) VALUES (%3)")
                     .arg(table, columns.join(QLatin1Char(',')), marks.join(QLatin1Char(','))),
                 values);
}

void DemoCompany::setParameter(const QString &key, const QVariant &value)
{
    SqlRun::exec(m_db, QStringLiteral("UPDATE t_SystemProfile SET FValue=? WHERE FKey=?"), {value.toString(), key});
}

void DemoCompany::seed(const Options &options)
{
    const int year = options.today.year();
    Transaction transaction(m_db);
    seedParameters(year);
    seedUsers();
    seedCurrenciesAndUnits();
    seedWarehouses();
    seedAccounts();
    seedAuxProperties();
    seedItems();
    const int lastBillInterId = seedBalances(year);
    seedSerialNumbers(year);
    setParameter(QStringLiteral("INIBillInterID"), lastBillInterId);
    if (options.items > 0 || options.warehouses > 0)
        DemoVolume(m_db, m_dialect).seed(options.items, options.warehouses, CurrentPeriod, year);
    seedLedger(year);
    for (const auto &[table, column] : {std::pair{QStringLiteral("t_User"), QStringLiteral("FUserID")},
                                        {QStringLiteral("t_Currency"), QStringLiteral("FCurrencyID")},
                                        {QStringLiteral("t_UnitGroup"), QStringLiteral("FUnitGroupID")},
                                        {QStringLiteral("t_MeasureUnit"), QStringLiteral("FMeasureUnitID")},
                                        {QStringLiteral("t_Stock"), QStringLiteral("FItemID")},
                                        {QStringLiteral("t_StockPlace"), QStringLiteral("FSPID")},
                                        {QStringLiteral("t_Account"), QStringLiteral("FAccountID")},
                                        {QStringLiteral("t_AuxClass"), QStringLiteral("FItemClassID")},
                                        {QStringLiteral("t_AuxItem"), QStringLiteral("FAuxPropID")},
                                        {QStringLiteral("t_ICItem"), QStringLiteral("FItemID")}})
        SqlRun::execAll(m_db, m_dialect.resetAutoIncrement(table, column));
    transaction.commit();
}

void DemoCompany::seedParameters(int year)
{
    const QList<std::pair<QString, QVariant>> values{
        {QStringLiteral("CurrentYear"), year},
        {QStringLiteral("StartYear"), year},
        {QStringLiteral("CurrentPeriod"), CurrentPeriod},
        {QStringLiteral("StartPeriod"), CurrentPeriod},
        {QStringLiteral("CPStartDate"), QDate(year, CurrentPeriod, 1).toString(QStringLiteral("MMddyyyy"))},
        {QStringLiteral("PriceDecimal"), 4},
        {QStringLiteral("GLClosed"), 1},
        {QStringLiteral("GLCurrentPeriod"), CurrentPeriod},
        {QStringLiteral("CostDiffAccountID"), int(CostDiffAcct)},
    };
    for (const auto &[key, value] : values)
        setParameter(key, value);
}

void DemoCompany::seedUsers()
{
    const QStringList userColumns{QStringLiteral("FUserID"), QStringLiteral("FName"), QStringLiteral("FDescription")};
    insert(QStringLiteral("t_User"), userColumns,
           {16, QStringLiteral("演示员"), QStringLiteral("演示用的操作员，拥有全部权限")});
    insert(QStringLiteral("t_User"), userColumns,
           {17, QStringLiteral("查询员"), QStringLiteral("可以引入、引出，不能打印")});
    const QStringList rightColumns{QStringLiteral("FUserID"), QStringLiteral("FObjectType"),
                                   QStringLiteral("FObjectID"), QStringLiteral("FRights")};
    const QString rights = QStringLiteral("t_AccessRight");
    insert(rights, rightColumns, {16, EntryObjectType, EntryObjectId, AllRights});
    insert(rights, rightColumns, {16, AdjustObjectType, AdjustObjectId, AllRights});
    insert(rights, rightColumns, {17, EntryObjectType, EntryObjectId, ImportRight | ExportRight});
    insert(rights, rightColumns, {17, AdjustObjectType, AdjustObjectId, ExportRight});
}

void DemoCompany::seedCurrenciesAndUnits()
{
    const QStringList currencyColumns{QStringLiteral("FCurrencyID"), QStringLiteral("FNumber"), QStringLiteral("FName"),
                                      QStringLiteral("FScale"), QStringLiteral("FExchangeRate")};
    insert(QStringLiteral("t_Currency"), currencyColumns, {2, QStringLiteral("USD"), QStringLiteral("美元"), 2, 7.1});
    insert(QStringLiteral("t_Currency"), currencyColumns, {3, QStringLiteral("JPY"), QStringLiteral("日元"), 0, 0.048});
    insert(QStringLiteral("t_Currency"), currencyColumns, {4, QStringLiteral("HKD"), QStringLiteral("港币"), 2, 0.91});

    const QStringList groupColumns{QStringLiteral("FUnitGroupID"), QStringLiteral("FNumber"), QStringLiteral("FName"),
                                   QStringLiteral("FDefaultUnitID")};
    insert(QStringLiteral("t_UnitGroup"), groupColumns,
           {1, QStringLiteral("01"), QStringLiteral("数量组"), int(Piece)});
    insert(QStringLiteral("t_UnitGroup"), groupColumns,
           {2, QStringLiteral("02"), QStringLiteral("重量组"), int(Kilogram)});
    insert(QStringLiteral("t_UnitGroup"), groupColumns,
           {3, QStringLiteral("03"), QStringLiteral("长度组"), int(Metre)});
    insert(QStringLiteral("t_UnitGroup"), groupColumns,
           {4, QStringLiteral("04"), QStringLiteral("容积组"), int(Litre)});

    const QStringList unitColumns{QStringLiteral("FMeasureUnitID"), QStringLiteral("FUnitGroupID"),
                                  QStringLiteral("FNumber"),        QStringLiteral("FName"),
                                  QStringLiteral("FCoefficient"),   QStringLiteral("FStandard")};
    for (const UnitRow &u : units)
        insert(QStringLiteral("t_MeasureUnit"), unitColumns,
               {u.id, u.group, text(u.number), text(u.name), u.coefficient, u.standard ? 1 : 0});
}

void DemoCompany::seedWarehouses()
{
    const QStringList stockColumns{QStringLiteral("FItemID"),    QStringLiteral("FParentID"),
                                   QStringLiteral("FNumber"),    QStringLiteral("FShortNumber"),
                                   QStringLiteral("FName"),      QStringLiteral("FTypeID"),
                                   QStringLiteral("FIsStockMgr")};
    for (const WarehouseRow &w : warehouses) {
        bool hasPlaces = false;
        for (const PlaceRow &p : places)
            hasPlaces = hasPlaces || p.stock == w.id;
        const QString number = text(w.number);
        insert(QStringLiteral("t_Stock"), stockColumns,
               {w.id, w.parent, number, number.section(QLatin1Char('.'), -1), text(w.name), w.type, hasPlaces ? 1 : 0});
    }
    const QStringList placeColumns{QStringLiteral("FSPID"), QStringLiteral("FStockID"), QStringLiteral("FNumber"),
                                   QStringLiteral("FShortNumber"), QStringLiteral("FName")};
    for (const PlaceRow &p : places) {
        const QString number = text(p.number);
        insert(QStringLiteral("t_StockPlace"), placeColumns,
               {p.id, p.stock, number, number.section(QLatin1Char('.'), -1), text(p.name)});
    }
}

void DemoCompany::seedAccounts()
{
    const QStringList columns{QStringLiteral("FAccountID"), QStringLiteral("FNumber"), QStringLiteral("FName"),
                              QStringLiteral("FDC")};
    for (const AccountRow &a : accounts)
        insert(QStringLiteral("t_Account"), columns, {a.id, text(a.number), text(a.name), a.dc});
}

void DemoCompany::seedAuxProperties()
{
    const QStringList classColumns{QStringLiteral("FItemClassID"), QStringLiteral("FNumber"), QStringLiteral("FName")};
    insert(QStringLiteral("t_AuxClass"), classColumns, {1, QStringLiteral("01"), QStringLiteral("颜色尺码")});
    insert(QStringLiteral("t_AuxClass"), classColumns, {2, QStringLiteral("02"), QStringLiteral("等级")});
    const QStringList propColumns{QStringLiteral("FAuxPropID"), QStringLiteral("FItemClassID"),
                                  QStringLiteral("FNumber"), QStringLiteral("FName")};
    const QList<QVariantList> props{{int(RedS), 1, QStringLiteral("R-S"), QStringLiteral("红色/S")},
                                    {int(RedM), 1, QStringLiteral("R-M"), QStringLiteral("红色/M")},
                                    {int(BlueL), 1, QStringLiteral("B-L"), QStringLiteral("蓝色/L")},
                                    {int(BlueXL), 1, QStringLiteral("B-XL"), QStringLiteral("蓝色/XL")},
                                    {int(FirstGrade), 2, QStringLiteral("A"), QStringLiteral("一等品")},
                                    {int(SecondGrade), 2, QStringLiteral("B"), QStringLiteral("二等品")}};
    for (const QVariantList &prop : props)
        insert(QStringLiteral("t_AuxItem"), propColumns, prop);
}

void DemoCompany::seedItems()
{
    const QStringList columns{
        QStringLiteral("FItemID"),       QStringLiteral("FNumber"),         QStringLiteral("FShortNumber"),
        QStringLiteral("FName"),         QStringLiteral("FModel"),          QStringLiteral("FErpClsID"),
        QStringLiteral("FUnitGroupID"),  QStringLiteral("FUnitID"),         QStringLiteral("FStoreUnitID"),
        QStringLiteral("FSecUnitID"),    QStringLiteral("FSecCoefficient"), QStringLiteral("FTrack"),
        QStringLiteral("FBatchManager"), QStringLiteral("FISKFPeriod"),     QStringLiteral("FKFPeriod"),
        QStringLiteral("FPlanPrice"),    QStringLiteral("FQtyDecimal"),     QStringLiteral("FPriceDecimal"),
        QStringLiteral("FAcctID"),       QStringLiteral("FAuxClassID")};
    for (const ItemRow &i : items) {
        const QString number = text(i.number);
        insert(QStringLiteral("t_ICItem"), columns,
               {i.id,
                number,
                number.section(QLatin1Char('.'), -1),
                text(i.name),
                text(i.model),
                i.erpClass,
                i.unitGroup,
                i.unit,
                i.unit,
                i.secUnit,
                i.secCoefficient,
                i.track,
                i.batch ? 1 : 0,
                i.shelfLife ? 1 : 0,
                i.shelfDays,
                i.planPrice,
                2,
                4,
                i.account,
                i.auxClass});
    }
}

int DemoCompany::seedBalances(int year)
{
    const QString openingDay = QDate(year, CurrentPeriod, 1).toString(Qt::ISODate);
    int billInterId = 0;
    const auto line = [&](int stock, int place, int item, double qty, double price, double received, double issued) {
        const ItemRow &row = itemRow(item);
        OpeningLine l;
        l.stockId = stock;
        l.placeId = place;
        l.itemId = item;
        l.unitId = row.unit;
        l.secUnitId = row.secUnit;
        l.secCoefficient = row.secCoefficient;
        l.stockInDate = openingDay;
        l.openingQty = qty;
        l.price = row.track == 81 ? row.planPrice : price;
        l.receivedQty = received;
        l.issuedQty = issued;
        return l;
    };
    // Batch and shelf-life lines carry their own running number, as the batch dialog gives them.
    const auto detail = [&](OpeningLine l, const QString &batch, const QString &made = {}, int days = 0) {
        l.batchNo = batch;
        l.kfDate = made;
        l.kfPeriod = days;
        l.billInterId = ++billInterId;
        return l;
    };
    const auto day = [year](int month, int dayOfMonth) { return QDate(year, month, dayOfMonth).toString(Qt::ISODate); };
    const auto withAux = [](OpeningLine l, int aux) {
        l.auxPropId = aux;
        return l;
    };
    // Planned-cost items carry a material-cost difference.
    const auto withDiff = [](OpeningLine l, double difference) {
        l.openingDiff = difference;
        return l;
    };
    const auto withSerials = [](OpeningLine l, int list) {
        l.snListId = list;
        return l;
    };

    const QList<OpeningLine> lines{
        detail(line(RawMaterials, ShelfA, SteelPlate, 12000, 4.35, 30000, 25000), QStringLiteral("B2401")),
        detail(line(RawMaterials, ShelfA, SteelPlate, 8000, 4.35, 8000, 0), QStringLiteral("B2402")),
        line(RawMaterials, ShelfA, CopperWire, 5000, 62.5, 12000, 10500),
        detail(line(RawMaterials, ShelfA, LubeOil, 400, 18.6, 400, 200), {}, day(1, 10), 365),
        detail(line(RawMaterials, ShelfA, LubeOil, 600, 19.2, 600, 0), {}, day(2, 20), 365),
        line(RawMaterials, ShelfB, RoundSteel, 3000, 4.8, 6000, 5200),
        line(RawMaterials, ShelfB, AluProfile, 1200, 21, 2400, 1900),
        detail(line(RawMaterials, ShelfB, EpoxyGlue, 200, 28, 300, 100), QStringLiteral("E2401"), day(1, 5), 180),
        detail(line(RawMaterials, ShelfB, EpoxyGlue, 150, 28.5, 150, 0), QStringLiteral("E2402"), day(2, 12), 180),
        withDiff(line(RawMaterials, ShelfB, Screw, 50000, 0, 100000, 80000), 150),
        withDiff(line(RawMaterials, ShelfB, Nut, 80000, 0, 120000, 90000), -60),
        detail(line(RawMaterials, ShelfB, ComponentKit, 50, 120, 80, 30), QStringLiteral("K001")),
        detail(line(RawMaterials, ShelfB, ComponentKit, 30, 125, 30, 0), QStringLiteral("K002")),
        withAux(line(RawMaterials, ShelfB, Gloves, 600, 3.5, 1000, 800), FirstGrade),
        withAux(line(RawMaterials, ShelfB, Gloves, 400, 2.8, 400, 300), SecondGrade),
        line(SemiFinished, 0, MotorHousing, 400, 180, 900, 700),
        line(SemiFinished, 0, Rotor, 350, 95, 800, 600),
        line(FinishedOne, 0, MotorSmall, 120, 2100, 300, 260),
        line(FinishedOne, 0, MotorLarge, 60, 4300, 150, 130),
        line(FinishedTwo, ShelfC, MotorSmall, 80, 2100, 80, 40),
        withAux(line(FinishedTwo, ShelfC, WorkShirt, 300, 35, 500, 200), RedS),
        withAux(line(FinishedTwo, ShelfC, WorkShirt, 200, 35, 200, 0), BlueL),
        withSerials(line(FinishedTwo, ShelfC, Laptop, LaptopSerialCount, 3800, LaptopSerialCount, 0), LaptopSerialList),
        line(Consigned, 0, ConsignedCopper, 2500, 0, 2500, 0),
    };

    for (const OpeningLine &l : lines)
        insert(QStringLiteral("ICInvInitial"), OpeningLine::columns(), l.values(CurrentPeriod));
    return billInterId;
}

void DemoCompany::seedSerialNumbers(int year)
{
    const QString openingDay = QDate(year, CurrentPeriod, 1).toString(Qt::ISODate);
    for (int n = 1; n <= LaptopSerialCount; ++n) {
        const QString serial = QStringLiteral("PF3A%1").arg(n, 4, 10, QLatin1Char('0'));
        insert(QStringLiteral("ICSerial"),
               {QStringLiteral("FSNListID"), QStringLiteral("FItemID"), QStringLiteral("FSerialNo"),
                QStringLiteral("FStockID"), QStringLiteral("FSPID")},
               {LaptopSerialList, int(Laptop), serial, int(FinishedTwo), int(ShelfC)});
        insert(QStringLiteral("ICSerial_F1"),
               {QStringLiteral("FSNListID"), QStringLiteral("FSerialNo"), QStringLiteral("FItemID"),
                QStringLiteral("FStockID"), QStringLiteral("FSPID")},
               {LaptopSerialList, serial, int(Laptop), int(FinishedTwo), int(ShelfC)});
        insert(QStringLiteral("ICSerialFlow"),
               {QStringLiteral("FSNListID"), QStringLiteral("FItemID"), QStringLiteral("FSerialNo"),
                QStringLiteral("FDate")},
               {LaptopSerialList, int(Laptop), serial, openingDay});
    }
}

void DemoCompany::seedLedger(int year)
{
    // The ledger agrees with the inventory on raw materials, processing and supplies; finished
    // goods differ, so reconciliation has something to show. Balances are debit-positive.
    constexpr double GoodsDifference = 1280.00;
    QSqlQuery sums =
        SqlRun::exec(m_db, QStringLiteral("SELECT i.FAcctID, sum(v.FBegBal), sum(v.FYtdDebit), sum(v.FYtdCredit), "
                                          "sum(v.FBegDiff) FROM ICInvInitial v "
                                          "JOIN t_ICItem i ON i.FItemID=v.FItemID GROUP BY i.FAcctID"));
    QList<QVariantList> balances;
    double costDifference = 0;
    while (sums.next()) {
        const int account = sums.value(0).toInt();
        double opening = sums.value(1).toDouble();
        if (account == GoodsAcct)
            opening += GoodsDifference;
        costDifference += sums.value(4).toDouble();
        balances.append({year, CurrentPeriod, account, opening, sums.value(2), sums.value(3), opening});
    }
    sums.finish();
    balances.append({year, CurrentPeriod, int(CostDiffAcct), costDifference, 0.0, 0.0, costDifference});
    balances.append({year, CurrentPeriod, int(ImpairmentAcct), -3500.0, 0.0, 0.0, -3500.0});
    balances.append({year, CurrentPeriod, int(PayablesAcct), -52000.0, 0.0, 0.0, -52000.0});
    const QStringList columns{QStringLiteral("FYear"),      QStringLiteral("FPeriod"),
                              QStringLiteral("FAccountID"), QStringLiteral("FBeginBalance"),
                              QStringLiteral("FYtdDebit"),  QStringLiteral("FYtdCredit"),
                              QStringLiteral("FEndBalance")};
    for (const QVariantList &balance : balances)
        insert(QStringLiteral("t_Balance"), columns, balance);
}
