#pragma once

#include "middletier_global.h"

#include <QDate>
#include <QSqlDatabase>

class SqlDialect;

// A believable demo company in a freshly created account set: warehouses with and without
// stock places (one nested, one held for others, one of a type the tree leaves out), units and
// unit groups, currencies, users with their rights, accounts with ledger opening balances (some
// agreeing with the inventory, some not), items of every valuation method, batch and shelf-life
// items with their lines, auxiliary properties, secondary units, serial numbers, and the initial
// balances of the current period. Optionally a large volume of generated items and warehouses
// for measurements (see DemoVolume).
class LUMOMIDDLETIER_EXPORT DemoCompany
{
public:
    struct Options
    {
        int items = 0;      // generated items on top of the company's own
        int warehouses = 0; // generated warehouses that hold them
        QDate today = QDate::currentDate();
    };

    // The period the demo's balances are entered for: the inventory module starts in April.
    static constexpr int CurrentPeriod = 4;

    DemoCompany(const QSqlDatabase &db, const SqlDialect &dialect);

    // Everything in one transaction.
    void seed(const Options &options);

private:
    void seedParameters(int year);
    void seedUsers();
    void seedCurrenciesAndUnits();
    void seedWarehouses();
    void seedAccounts();
    void seedAuxProperties();
    void seedItems();
    int seedBalances(int year);
    void seedSerialNumbers(int year);
    void seedLedger(int year);
    void setParameter(const QString &key, const QVariant &value);
    void insert(const QString &table, const QStringList &columns, const QVariantList &values);

    QSqlDatabase m_db;
    const SqlDialect &m_dialect;
};
