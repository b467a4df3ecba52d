#pragma once

#include "dialect/columntype.h"
#include "middletier_global.h"

#include <QList>
#include <QString>
#include <QStringList>

// The one declaration of the account-set tables, versioned: every table, column and index says
// in which schema version it came. The DDL of both backends, the migrations from older versions
// and the inspection of an account set are all derived from it.

struct ColumnDecl
{
    QString name;
    ColumnType type = ColumnType::Integer;
    int size = 0;
    bool notNull = false;
    QString defaultValue; // SQL literal text, empty for none
    bool autoKey = false; // automatically numbered primary key
    int since = 1;
};

struct IndexDecl
{
    QString name;
    QStringList columns;
    bool unique = false;
    int since = 1;
};

struct ForeignKeyDecl
{
    QString column;
    QString refTable;
    QString refColumn;
};

struct LUMOMIDDLETIER_EXPORT TableDecl
{
    QString name;
    int since = 1;
    QList<ColumnDecl> columns;
    QStringList primaryKey; // when no column is an automatic key
    QList<IndexDecl> indexes;
    QList<ForeignKeyDecl> foreignKeys; // only on columns that came with the table

    const ColumnDecl *column(const QString &name) const;
};

class LUMOMIDDLETIER_EXPORT Schema
{
public:
    // Version 1: the opening balances with warehouses, items, units, currencies, accounts,
    // ledger balances, serial numbers, users and rights, the task mutex.
    // Version 2: auxiliary properties, inventory balances after start-up, balance-adjustment
    // bills, report formats, filter field lists, the composed-key index.
    // Version 3: the place totals kept by triggers, and the item-row index behind them.
    // Version 4: the quantity-precision index.
    // Version 5: the place-totals triggers lock the place before they count (PlaceTotals).
    static constexpr int CurrentVersion = 5;
    static inline const QString VersionTable = QStringLiteral("t_SchemaVersion");
    // Width of t_TaskMutex.FComputerName; the task mutex cuts computer names to it.
    static constexpr int ComputerNameWidth = 80;

    static const QList<TableDecl> &tables();
    // Without regard to case; nullptr when the schema has no such table.
    static const TableDecl *table(const QString &name);
};
