#pragma once

#include "testdatabase.h"

#include <QObject>

#include <memory>

// Filter and sort texts of the find/filter/sort dialog and of the filter dialog, run against a
// small table: they select the right rows, and anything outside the declared fields and operators
// is refused or compared as plain data.
class FilterParserTest : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void filters_data();
    void filters();
    void refusedFilters_data();
    void refusedFilters();
    void sorts_data();
    void sorts();

private:
    QList<int> select(const QString &filter, const QString &sort = {}) const;

    std::unique_ptr<TestDatabase> m_db;
};
