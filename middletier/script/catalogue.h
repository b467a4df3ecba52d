#pragma once

#include <QString>

#include <span>

// The tables and columns the controls write through the data service's UpdateINIData, and
// what they may do to each. The script executor refuses every other table, column and
// statement kind. The account-set schema must hold every column listed here with a type of the
// given kind (Integer: integer type, Real: double, Text: text, Date: "yyyy-mm-dd" text).
namespace script {

enum class StatementKind { Insert = 1, Update = 2, Delete = 4 };
enum class ColumnKind { Integer, Real, Text, Date };

struct ColumnDef
{
    const char *name;
    ColumnKind kind;
    // Written by INSERT or SET; a column that is not writable may only appear in a condition.
    bool writable = true;
};

// A WHERE of an UPDATE or DELETE (and of the sub-select of a delete) must pin every column of
// at least one key of the table with '=' or IN, in its top-level AND chain, so that no
// statement of the accepted shape can touch the whole table.
struct KeyDef
{
    std::span<const char *const> columns;
};

struct TableDef
{
    const char *name;
    std::span<const ColumnDef> columns;
    int allowedKinds; // StatementKind flags
    // May be read in "... In (Select Distinct column From table Where ...)" of a delete.
    bool subSelectSource;
    std::span<const KeyDef> keys;
};

namespace catalogue {

constexpr int allKinds = int(StatementKind::Insert) | int(StatementKind::Update) | int(StatementKind::Delete);

// One initial balance per warehouse, stock place, period, item, auxiliary property and batch.
inline constexpr ColumnDef icInvInitialColumns[] = {
    {"FBrNo", ColumnKind::Text},
    {"FPeriod", ColumnKind::Integer},
    {"FStockID", ColumnKind::Integer},
    {"FSPID", ColumnKind::Integer},
    {"FItemID", ColumnKind::Integer},
    {"FUnitID", ColumnKind::Integer},
    {"FBatchNo", ColumnKind::Text},
    {"FYtdAuxBegQty", ColumnKind::Real},
    {"FYtdBegBal", ColumnKind::Real},
    {"FYtdBegDiff", ColumnKind::Real},
    {"FYtdAuxReceive", ColumnKind::Real},
    {"FYtdDebit", ColumnKind::Real},
    {"FYtdReceiveDiff", ColumnKind::Real},
    {"FYtdAuxSend", ColumnKind::Real},
    {"FYtdCredit", ColumnKind::Real},
    {"FYtdSendDiff", ColumnKind::Real},
    {"FAuxBegQty", ColumnKind::Real},
    {"FBegBal", ColumnKind::Real},
    {"FBegDiff", ColumnKind::Real},
    {"FAuxUnitBegQty", ColumnKind::Real},
    {"FYtdAuxUnitBegQty", ColumnKind::Real},
    {"FYtdAuxUnitSend", ColumnKind::Real},
    {"FYtdAuxUnitReceive", ColumnKind::Real},
    {"FStockInDate", ColumnKind::Date},
    {"FSecUnitID", ColumnKind::Integer},
    {"FAuxPropID", ColumnKind::Integer},
    {"FSecCoefficient", ColumnKind::Real},
    {"FFieldCompose", ColumnKind::Text},
    {"FSNListID", ColumnKind::Integer},
    {"FBillInterID", ColumnKind::Integer},
    {"FKFDate", ColumnKind::Date},
    {"FKFPeriod", ColumnKind::Integer},
};
// The rows of one item in one place and period, or one item row by its composed key.
inline constexpr const char *icInvInitialPlaceKey[] = {"FStockID", "FSPID", "FPeriod", "FItemID"};
inline constexpr const char *icInvInitialComposedKey[] = {"FFieldCompose"};
inline constexpr KeyDef icInvInitialKeys[] = {{icInvInitialPlaceKey}, {icInvInitialComposedKey}};

// ICSerial, ICSerialFlow and ICSerial_F1: serial-number lists, cleared by list id only.
inline constexpr ColumnDef serialColumns[] = {
    {"FSNListID", ColumnKind::Integer},
};
inline constexpr const char *serialListKey[] = {"FSNListID"};
inline constexpr KeyDef serialKeys[] = {{serialListKey}};

// System parameters: only FValue of one row named by category and key is written.
inline constexpr ColumnDef systemProfileColumns[] = {
    {"FCategory", ColumnKind::Text, false},
    {"FKey", ColumnKind::Text, false},
    {"FValue", ColumnKind::Text},
};
inline constexpr const char *systemProfileRowKey[] = {"FCategory", "FKey"};
inline constexpr KeyDef systemProfileKeys[] = {{systemProfileRowKey}};

inline constexpr TableDef tables[] = {
    {"ICInvInitial", icInvInitialColumns, allKinds, true, icInvInitialKeys},
    {"ICSerial", serialColumns, int(StatementKind::Delete), false, serialKeys},
    {"ICSerialFlow", serialColumns, int(StatementKind::Delete), false, serialKeys},
    {"ICSerial_F1", serialColumns, int(StatementKind::Delete), false, serialKeys},
    {"t_SystemProfile", systemProfileColumns, int(StatementKind::Update), false, systemProfileKeys},
};

// Lookups without regard to case; nullptr when the name is not in the catalogue.
const TableDef *findTable(const QString &name);
const ColumnDef *findColumn(const TableDef &table, const QString &name);

} // namespace catalogue
} // namespace script
