#include "schema.h"

#include "placetotals.h"

namespace {

// Builds one table declaration column by column, so the list below reads like DDL.
class TableBuilder
{
public:
    TableBuilder(const QString &name, int since = 1)
    {
        m_table.name = name;
        m_table.since = since;
    }

    TableBuilder &key(const QString &name)
    {
        m_table.columns.append({name, ColumnType::Integer, 0, true, {}, true, m_table.since});
        return *this;
    }
    // A NOT NULL column; the default, when given, is SQL literal text.
    TableBuilder &col(const QString &name, ColumnType type, const QString &defaultValue = {}, int size = 0)
    {
        m_table.columns.append({name, type, size, true, defaultValue, false, m_table.since});
        return *this;
    }
    TableBuilder &text(const QString &name, int size, const QString &defaultValue = QStringLiteral("''"))
    {
        return col(name, ColumnType::Text, defaultValue, size);
    }
    TableBuilder &integer(const QString &name, const QString &defaultValue = QStringLiteral("0"))
    {
        return col(name, ColumnType::Integer, defaultValue);
    }
    TableBuilder &flag(const QString &name, const QString &defaultValue = QStringLiteral("0"))
    {
        return col(name, ColumnType::SmallInt, defaultValue);
    }
    TableBuilder &real(const QString &name) { return col(name, ColumnType::Real, QStringLiteral("0")); }
    TableBuilder &reals(const QStringList &names)
    {
        for (const QString &name : names)
            real(name);
        return *this;
    }
    TableBuilder &nullable(const QString &name, ColumnType type)
    {
        m_table.columns.append({name, type, 0, false, {}, false, m_table.since});
        return *this;
    }
    // Marks the last column as added by a later version.
    TableBuilder &since(int version)
    {
        m_table.columns.last().since = version;
        return *this;
    }
    TableBuilder &primaryKey(const QStringList &columns)
    {
        m_table.primaryKey = columns;
        return *this;
    }
    TableBuilder &index(const QString &suffix, const QStringList &columns, int since = 0)
    {
        m_table.indexes.append(
            {QStringLiteral("ix_%1_%2").arg(m_table.name, suffix), columns, false, since ? since : m_table.since});
        return *this;
    }
    TableBuilder &unique(const QString &suffix, const QStringList &columns)
    {
        m_table.indexes.append({QStringLiteral("ux_%1_%2").arg(m_table.name, suffix), columns, true, m_table.since});
        return *this;
    }
    TableBuilder &references(const QString &column, const QString &refTable, const QString &refColumn)
    {
        m_table.foreignKeys.append({column, refTable, refColumn});
        return *this;
    }

    TableDecl build() const { return m_table; }

private:
    TableDecl m_table;
};

const QStringList periodFigures{
    QStringLiteral("FYtdAuxBegQty"),     QStringLiteral("FYtdBegBal"),        QStringLiteral("FYtdBegDiff"),
    QStringLiteral("FYtdAuxReceive"),    QStringLiteral("FYtdDebit"),         QStringLiteral("FYtdReceiveDiff"),
    QStringLiteral("FYtdAuxSend"),       QStringLiteral("FYtdCredit"),        QStringLiteral("FYtdSendDiff"),
    QStringLiteral("FAuxBegQty"),        QStringLiteral("FBegBal"),           QStringLiteral("FBegDiff"),
    QStringLiteral("FAuxUnitBegQty"),    QStringLiteral("FYtdAuxUnitBegQty"), QStringLiteral("FYtdAuxUnitSend"),
    QStringLiteral("FYtdAuxUnitReceive")};

QList<TableDecl> declareTables()
{
    using T = TableBuilder;
    QList<TableDecl> tables;

    tables << T(Schema::VersionTable)
                  .col(QStringLiteral("FVersion"), ColumnType::Integer)
                  .col(QStringLiteral("FAppliedAt"), ColumnType::DateTime)
                  .primaryKey({QStringLiteral("FVersion")})
                  .build();

    tables << T(QStringLiteral("t_SystemProfile"))
                  .text(QStringLiteral("FCategory"), 30, {})
                  .text(QStringLiteral("FKey"), 100, {})
                  .text(QStringLiteral("FValue"), 255)
                  .text(QStringLiteral("FDescription"), 255)
                  .primaryKey({QStringLiteral("FCategory"), QStringLiteral("FKey")})
                  .build();

    tables << T(QStringLiteral("t_User"))
                  .key(QStringLiteral("FUserID"))
                  .text(QStringLiteral("FName"), 80, {})
                  .text(QStringLiteral("FDescription"), 255)
                  .flag(QStringLiteral("FIsAdmin"))
                  .flag(QStringLiteral("FForbidden"))
                  .unique(QStringLiteral("Name"), {QStringLiteral("FName")})
                  .build();

    // One row per user and protected object; FRights is a bit mask (32768 print, 32 import, 16 export).
    tables << T(QStringLiteral("t_AccessRight"))
                  .integer(QStringLiteral("FUserID"), {})
                  .integer(QStringLiteral("FObjectType"), {})
                  .integer(QStringLiteral("FObjectID"), {})
                  .col(QStringLiteral("FRights"), ColumnType::BigInt, QStringLiteral("0"))
                  .primaryKey({QStringLiteral("FUserID"), QStringLiteral("FObjectType"), QStringLiteral("FObjectID")})
                  .references(QStringLiteral("FUserID"), QStringLiteral("t_User"), QStringLiteral("FUserID"))
                  .build();

    tables << T(QStringLiteral("t_TaskMutex"))
                  .key(QStringLiteral("FTaskHandle"))
                  .integer(QStringLiteral("FTaskID"), {})
                  .text(QStringLiteral("FFuncCode"), 40)
                  .integer(QStringLiteral("FUserID"))
                  .text(QStringLiteral("FUserName"), 80)
                  .text(QStringLiteral("FComputerName"), Schema::ComputerNameWidth, {})
                  .integer(QStringLiteral("FProcessID"), {})
                  .flag(QStringLiteral("FKind"))
                  .flag(QStringLiteral("FFlagA"))
                  .flag(QStringLiteral("FFlagB"))
                  .text(QStringLiteral("FExtra"), 255)
                  .col(QStringLiteral("FStartTime"), ColumnType::DateTime)
                  .flag(QStringLiteral("FCommitted"))
                  .nullable(QStringLiteral("FCommitTime"), ColumnType::DateTime)
                  .index(QStringLiteral("Task"), {QStringLiteral("FTaskID")})
                  .build();

    tables << T(QStringLiteral("t_Currency"))
                  .key(QStringLiteral("FCurrencyID"))
                  .text(QStringLiteral("FNumber"), 20, {})
                  .text(QStringLiteral("FName"), 80, {})
                  .flag(QStringLiteral("FScale"), QStringLiteral("2"))
                  .col(QStringLiteral("FExchangeRate"), ColumnType::Real, QStringLiteral("1"))
                  .unique(QStringLiteral("Number"), {QStringLiteral("FNumber")})
                  .build();

    tables << T(QStringLiteral("t_UnitGroup"))
                  .key(QStringLiteral("FUnitGroupID"))
                  .text(QStringLiteral("FNumber"), 30, {})
                  .text(QStringLiteral("FName"), 80, {})
                  .integer(QStringLiteral("FDefaultUnitID"))
                  .unique(QStringLiteral("Number"), {QStringLiteral("FNumber")})
                  .build();

    // FCoefficient converts to the group's standard unit; FConversation 1 marks a unit offered
    // for conversion in the unit lookup.
    tables << T(QStringLiteral("t_MeasureUnit"))
                  .key(QStringLiteral("FMeasureUnitID"))
                  .integer(QStringLiteral("FUnitGroupID"), {})
                  .text(QStringLiteral("FNumber"), 30, {})
                  .text(QStringLiteral("FName"), 80, {})
                  .col(QStringLiteral("FCoefficient"), ColumnType::Real, QStringLiteral("1"))
                  .flag(QStringLiteral("FConversation"), QStringLiteral("1"))
                  .flag(QStringLiteral("FStandard"))
                  .flag(QStringLiteral("FPrecision"), QStringLiteral("2"))
                  .unique(QStringLiteral("Number"), {QStringLiteral("FNumber")})
                  .index(QStringLiteral("Group"), {QStringLiteral("FUnitGroupID")})
                  .references(QStringLiteral("FUnitGroupID"), QStringLiteral("t_UnitGroup"),
                              QStringLiteral("FUnitGroupID"))
                  .build();

    // Warehouses, possibly nested under a parent warehouse; FTypeID 500 ordinary, 502 held for
    // others, 20291 and 20293 the suite's further kinds. FIsStockMgr: managed by stock places.
    tables << T(QStringLiteral("t_Stock"))
                  .key(QStringLiteral("FItemID"))
                  .integer(QStringLiteral("FParentID"))
                  .text(QStringLiteral("FNumber"), 80, {})
                  .text(QStringLiteral("FShortNumber"), 80)
                  .text(QStringLiteral("FName"), 255, {})
                  .integer(QStringLiteral("FTypeID"), QStringLiteral("500"))
                  .flag(QStringLiteral("FIsStockMgr"))
                  .flag(QStringLiteral("FDeleted"))
                  .unique(QStringLiteral("Number"), {QStringLiteral("FNumber")})
                  .index(QStringLiteral("Parent"), {QStringLiteral("FParentID")})
                  .build();

    tables << T(QStringLiteral("t_StockPlace"))
                  .key(QStringLiteral("FSPID"))
                  .integer(QStringLiteral("FStockID"), {})
                  .text(QStringLiteral("FNumber"), 80, {})
                  .text(QStringLiteral("FShortNumber"), 80)
                  .text(QStringLiteral("FName"), 255, {})
                  .flag(QStringLiteral("FDeleted"))
                  .unique(QStringLiteral("Number"), {QStringLiteral("FStockID"), QStringLiteral("FNumber")})
                  .references(QStringLiteral("FStockID"), QStringLiteral("t_Stock"), QStringLiteral("FItemID"))
                  .build();

    // Ledger accounts: FDC 1 debit, -1 credit; FDetail 1 for a posting (leaf) account;
    // FDetailID the accounting-item combination (0: none).
    tables << T(QStringLiteral("t_Account"))
                  .key(QStringLiteral("FAccountID"))
                  .text(QStringLiteral("FNumber"), 40, {})
                  .text(QStringLiteral("FName"), 255, {})
                  .integer(QStringLiteral("FParentID"))
                  .flag(QStringLiteral("FLevel"), QStringLiteral("1"))
                  .flag(QStringLiteral("FDetail"), QStringLiteral("1"))
                  .flag(QStringLiteral("FDC"), QStringLiteral("1"))
                  .integer(QStringLiteral("FDetailID"))
                  .unique(QStringLiteral("Number"), {QStringLiteral("FNumber")})
                  .build();

    // Opening balances of the general ledger per year, period, account, currency and accounting item.
    tables << T(QStringLiteral("t_Balance"))
                  .flag(QStringLiteral("FYear"), {})
                  .flag(QStringLiteral("FPeriod"), {})
                  .integer(QStringLiteral("FAccountID"), {})
                  .integer(QStringLiteral("FCurrencyID"), QStringLiteral("1"))
                  .integer(QStringLiteral("FDetailID"))
                  .reals({QStringLiteral("FBeginBalance"), QStringLiteral("FDebit"), QStringLiteral("FCredit"),
                          QStringLiteral("FYtdDebit"), QStringLiteral("FYtdCredit"), QStringLiteral("FEndBalance")})
                  .primaryKey({QStringLiteral("FYear"), QStringLiteral("FPeriod"), QStringLiteral("FAccountID"),
                               QStringLiteral("FCurrencyID"), QStringLiteral("FDetailID")})
                  .references(QStringLiteral("FAccountID"), QStringLiteral("t_Account"), QStringLiteral("FAccountID"))
                  .build();

    // Items. FErpClsID: 1 purchased, 2 self-made, 3 subcontracted, 5 virtual, 7 configured,
    // 9 feature class. FTrack: valuation method 76..81 or 20308. FAcctID: inventory account.
    tables << T(QStringLiteral("t_ICItem"))
                  .key(QStringLiteral("FItemID"))
                  .text(QStringLiteral("FNumber"), 80, {})
                  .text(QStringLiteral("FShortNumber"), 80)
                  .text(QStringLiteral("FName"), 255, {})
                  .text(QStringLiteral("FModel"), 255)
                  .flag(QStringLiteral("FErpClsID"), QStringLiteral("1"))
                  .integer(QStringLiteral("FUnitGroupID"), {})
                  .integer(QStringLiteral("FUnitID"), {})
                  .integer(QStringLiteral("FStoreUnitID"))
                  .integer(QStringLiteral("FSecUnitID"))
                  .real(QStringLiteral("FSecCoefficient"))
                  .integer(QStringLiteral("FTrack"), QStringLiteral("76"))
                  .flag(QStringLiteral("FBatchManager"))
                  .flag(QStringLiteral("FISKFPeriod"))
                  .integer(QStringLiteral("FKFPeriod"))
                  .real(QStringLiteral("FPlanPrice"))
                  .flag(QStringLiteral("FQtyDecimal"), QStringLiteral("2"))
                  .flag(QStringLiteral("FPriceDecimal"), QStringLiteral("2"))
                  .integer(QStringLiteral("FAcctID"))
                  .flag(QStringLiteral("FDeleted"))
                  .integer(QStringLiteral("FAuxClassID"))
                  .since(2)
                  .unique(QStringLiteral("Number"), {QStringLiteral("FNumber")})
                  .index(QStringLiteral("ShortNumber"), {QStringLiteral("FShortNumber")})
                  .index(QStringLiteral("Acct"), {QStringLiteral("FAcctID")})
                  // The grand total's precision walks the items from the finest down.
                  .index(QStringLiteral("QtyDecimal"), {QStringLiteral("FQtyDecimal")}, 4)
                  .references(QStringLiteral("FUnitGroupID"), QStringLiteral("t_UnitGroup"),
                              QStringLiteral("FUnitGroupID"))
                  .references(QStringLiteral("FUnitID"), QStringLiteral("t_MeasureUnit"),
                              QStringLiteral("FMeasureUnitID"))
                  .build();

    // The initial balances: item rows (FBatchNo '') and batch / shelf-life lines of one item
    // share FFieldCompose = StockID|SPID|Period|ItemID|AuxPropID.
    TableBuilder initial(QStringLiteral("ICInvInitial"));
    initial.key(QStringLiteral("FEntryID"))
        .text(QStringLiteral("FBrNo"), 10, QStringLiteral("'0'"))
        .flag(QStringLiteral("FPeriod"), {})
        .integer(QStringLiteral("FStockID"), {})
        .integer(QStringLiteral("FSPID"))
        .integer(QStringLiteral("FItemID"), {})
        .integer(QStringLiteral("FUnitID"))
        .text(QStringLiteral("FBatchNo"), 200)
        .reals(periodFigures)
        .col(QStringLiteral("FStockInDate"), ColumnType::Date, QStringLiteral("''"))
        .integer(QStringLiteral("FSecUnitID"))
        .integer(QStringLiteral("FAuxPropID"))
        .real(QStringLiteral("FSecCoefficient"))
        .text(QStringLiteral("FFieldCompose"), 255)
        .integer(QStringLiteral("FSNListID"))
        .integer(QStringLiteral("FBillInterID"))
        .col(QStringLiteral("FKFDate"), ColumnType::Date, QStringLiteral("''"))
        .integer(QStringLiteral("FKFPeriod"))
        .index(QStringLiteral("Place"),
               {QStringLiteral("FStockID"), QStringLiteral("FSPID"), QStringLiteral("FPeriod")})
        .index(QStringLiteral("Item"), {QStringLiteral("FItemID")})
        .index(QStringLiteral("Compose"), {QStringLiteral("FFieldCompose")}, 2)
        .index(QStringLiteral("Group"),
               {QStringLiteral("FStockID"), QStringLiteral("FSPID"), QStringLiteral("FPeriod"), QStringLiteral("FItemID"),
                QStringLiteral("FAuxPropID")},
               3)
        .references(QStringLiteral("FItemID"), QStringLiteral("t_ICItem"), QStringLiteral("FItemID"))
        .references(QStringLiteral("FStockID"), QStringLiteral("t_Stock"), QStringLiteral("FItemID"));
    tables << initial.build();

    // Serial numbers: the numbers of a list (FSNListID, shared with ICInvInitial), their
    // movements, and the numbers entered with the initial balances.
    tables << T(QStringLiteral("ICSerial"))
                  .key(QStringLiteral("FSerialID"))
                  .integer(QStringLiteral("FSNListID"), {})
                  .integer(QStringLiteral("FItemID"), {})
                  .text(QStringLiteral("FSerialNo"), 80, {})
                  .integer(QStringLiteral("FStockID"))
                  .integer(QStringLiteral("FSPID"))
                  .flag(QStringLiteral("FStatus"), QStringLiteral("1"))
                  .index(QStringLiteral("List"), {QStringLiteral("FSNListID")})
                  .unique(QStringLiteral("Number"), {QStringLiteral("FItemID"), QStringLiteral("FSerialNo")})
                  .build();

    tables << T(QStringLiteral("ICSerialFlow"))
                  .key(QStringLiteral("FFlowID"))
                  .integer(QStringLiteral("FSNListID"), {})
                  .integer(QStringLiteral("FItemID"), {})
                  .text(QStringLiteral("FSerialNo"), 80, {})
                  .integer(QStringLiteral("FTranType"))
                  .integer(QStringLiteral("FBillInterID"))
                  .col(QStringLiteral("FDate"), ColumnType::Date, QStringLiteral("''"))
                  .index(QStringLiteral("List"), {QStringLiteral("FSNListID")})
                  .build();

    tables << T(QStringLiteral("ICSerial_F1"))
                  .integer(QStringLiteral("FSNListID"), {})
                  .text(QStringLiteral("FSerialNo"), 80, {})
                  .integer(QStringLiteral("FItemID"), {})
                  .integer(QStringLiteral("FStockID"))
                  .integer(QStringLiteral("FSPID"))
                  .primaryKey({QStringLiteral("FSNListID"), QStringLiteral("FSerialNo")})
                  .build();

    // ---- version 2 ----

    tables << T(QStringLiteral("t_AuxClass"), 2)
                  .key(QStringLiteral("FItemClassID"))
                  .text(QStringLiteral("FNumber"), 30, {})
                  .text(QStringLiteral("FName"), 80, {})
                  .unique(QStringLiteral("Number"), {QStringLiteral("FNumber")})
                  .build();

    tables << T(QStringLiteral("t_AuxItem"), 2)
                  .key(QStringLiteral("FAuxPropID"))
                  .integer(QStringLiteral("FItemClassID"), {})
                  .text(QStringLiteral("FNumber"), 80, {})
                  .text(QStringLiteral("FName"), 255, {})
                  .unique(QStringLiteral("Number"), {QStringLiteral("FItemClassID"), QStringLiteral("FNumber")})
                  .references(QStringLiteral("FItemClassID"), QStringLiteral("t_AuxClass"),
                              QStringLiteral("FItemClassID"))
                  .build();

    // Inventory balances per period once the inventory module has started.
    tables << T(QStringLiteral("ICInvBal"), 2)
                  .text(QStringLiteral("FBrNo"), 10, QStringLiteral("'0'"))
                  .flag(QStringLiteral("FYear"), {})
                  .flag(QStringLiteral("FPeriod"), {})
                  .integer(QStringLiteral("FStockID"), {})
                  .integer(QStringLiteral("FSPID"))
                  .integer(QStringLiteral("FItemID"), {})
                  .integer(QStringLiteral("FAuxPropID"))
                  .text(QStringLiteral("FBatchNo"), 200)
                  .col(QStringLiteral("FKFDate"), ColumnType::Date, QStringLiteral("''"))
                  .integer(QStringLiteral("FKFPeriod"))
                  .reals({QStringLiteral("FBegQty"), QStringLiteral("FBegBal"), QStringLiteral("FBegDiff"),
                          QStringLiteral("FReceive"), QStringLiteral("FDebit"), QStringLiteral("FReceiveDiff"),
                          QStringLiteral("FSend"), QStringLiteral("FCredit"), QStringLiteral("FSendDiff"),
                          QStringLiteral("FEndQty"), QStringLiteral("FEndBal"), QStringLiteral("FEndDiff")})
                  .primaryKey({QStringLiteral("FYear"), QStringLiteral("FPeriod"), QStringLiteral("FStockID"),
                               QStringLiteral("FSPID"), QStringLiteral("FItemID"), QStringLiteral("FAuxPropID"),
                               QStringLiteral("FBatchNo"), QStringLiteral("FKFDate")})
                  .index(QStringLiteral("Item"), {QStringLiteral("FItemID")})
                  .build();

    // Balance-adjustment bills made from corrections after start-up.
    tables << T(QStringLiteral("ICAdjBill"), 2)
                  .key(QStringLiteral("FInterID"))
                  .text(QStringLiteral("FBillNo"), 40, {})
                  .col(QStringLiteral("FDate"), ColumnType::Date, QStringLiteral("''"))
                  .flag(QStringLiteral("FYear"), {})
                  .flag(QStringLiteral("FPeriod"), {})
                  .integer(QStringLiteral("FStockID"))
                  .integer(QStringLiteral("FSPID"))
                  .integer(QStringLiteral("FBillerID"))
                  .flag(QStringLiteral("FStatus"))
                  .text(QStringLiteral("FNote"), 255)
                  .unique(QStringLiteral("BillNo"), {QStringLiteral("FBillNo")})
                  .build();

    tables << T(QStringLiteral("ICAdjBillEntry"), 2)
                  .integer(QStringLiteral("FInterID"), {})
                  .integer(QStringLiteral("FEntryID"), {})
                  .integer(QStringLiteral("FItemID"), {})
                  .integer(QStringLiteral("FAuxPropID"))
                  .text(QStringLiteral("FBatchNo"), 200)
                  .integer(QStringLiteral("FUnitID"))
                  .reals({QStringLiteral("FQty"), QStringLiteral("FOldAmount"), QStringLiteral("FNewAmount"),
                          QStringLiteral("FAmount"), QStringLiteral("FOldDiff"), QStringLiteral("FNewDiff"),
                          QStringLiteral("FDiff")})
                  .primaryKey({QStringLiteral("FInterID"), QStringLiteral("FEntryID")})
                  .references(QStringLiteral("FInterID"), QStringLiteral("ICAdjBill"), QStringLiteral("FInterID"))
                  .build();

    // Stored report formats (the header/footer records of printing), one value per name.
    tables << T(QStringLiteral("t_RptFormat"), 2)
                  .integer(QStringLiteral("FRptClass"), {})
                  .text(QStringLiteral("FFormatKey"), 255, {})
                  .integer(QStringLiteral("FUserID"))
                  .text(QStringLiteral("FName"), 80, {})
                  .col(QStringLiteral("FValue"), ColumnType::LongText, QStringLiteral("''"))
                  .primaryKey({QStringLiteral("FRptClass"), QStringLiteral("FFormatKey"), QStringLiteral("FUserID"),
                               QStringLiteral("FName")})
                  .build();

    // The fields a data set offers to the free-form filter and sort dialog. FKind: 0 text,
    // 1 number, 2 date.
    tables << T(QStringLiteral("t_FieldList"), 2)
                  .text(QStringLiteral("FDataSet"), 60, {})
                  .text(QStringLiteral("FFieldName"), 80, {})
                  .text(QStringLiteral("FName"), 80, {})
                  .flag(QStringLiteral("FKind"))
                  .flag(QStringLiteral("FVisForQuest"), QStringLiteral("1"))
                  .flag(QStringLiteral("FVisForOrder"), QStringLiteral("1"))
                  .integer(QStringLiteral("FIndex"))
                  .primaryKey({QStringLiteral("FDataSet"), QStringLiteral("FFieldName")})
                  .build();

    // ---- version 3 ----

    // The totals of every place and period, kept by triggers on ICInvInitial (see PlaceTotals):
    // the number of item rows (item and auxiliary property) and the sums of the twelve figures.
    TableBuilder totals(PlaceTotals::Table, 3);
    totals.integer(QStringLiteral("FStockID"), {})
        .integer(QStringLiteral("FSPID"), {})
        .integer(QStringLiteral("FPeriod"), {})
        .integer(PlaceTotals::GroupCount)
        .reals(PlaceTotals::figures())
        .primaryKey({QStringLiteral("FStockID"), QStringLiteral("FSPID"), QStringLiteral("FPeriod")});
    tables << totals.build();

    return tables;
}

} // namespace

const ColumnDecl *TableDecl::column(const QString &name) const
{
    for (const ColumnDecl &c : columns) {
        if (c.name.compare(name, Qt::CaseInsensitive) == 0)
            return &c;
    }
    return nullptr;
}

const QList<TableDecl> &Schema::tables()
{
    static const QList<TableDecl> declared = declareTables();
    return declared;
}

const TableDecl *Schema::table(const QString &name)
{
    for (const TableDecl &t : tables()) {
        if (t.name.compare(name, Qt::CaseInsensitive) == 0)
            return &t;
    }
    return nullptr;
}
