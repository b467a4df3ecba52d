#pragma once

#include "middletier_global.h"

#include <QSqlDatabase>

class SqlDialect;

// Generated volume on top of the demo company, for measurements: items numbered "99.000001"
// on, warehouses numbered "90.001" on, and one initial balance per item in every generated
// warehouse (in the semi-finished goods warehouse when none is generated), so that
// items x warehouses rows are written. The valuation methods take turns. Rows go in through
// multi-row prepared inserts inside the caller's transaction.
class LUMOMIDDLETIER_EXPORT DemoVolume
{
public:
    DemoVolume(const QSqlDatabase &db, const SqlDialect &dialect);

    void seed(int items, int warehouses, int period, int year);

private:
    QSqlDatabase m_db;
    const SqlDialect &m_dialect;
};
