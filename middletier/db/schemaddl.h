#pragma once

#include "middletier_global.h"
#include "schema.h"

#include <QStringList>

class SqlDialect;

// The DDL of the declared schema in one dialect: a whole schema at a version, or the steps
// from one version to a later one.
class LUMOMIDDLETIER_EXPORT SchemaDdl
{
public:
    explicit SchemaDdl(const SqlDialect &dialect)
        : m_dialect(dialect)
    {
    }

    // CREATE TABLE and CREATE INDEX for every table as it stood at the version, and the
    // triggers of that version.
    QStringList create(int version) const;
    // New tables, added columns, new indexes and triggers of the versions after `from` up to
    // `to`, and what fills the new tables from the rows already there.
    QStringList migrate(int from, int to) const;

    QStringList createTable(const TableDecl &table, int version) const;

private:
    QString columnDefinition(const ColumnDecl &column) const;
    QString createIndex(const TableDecl &table, const IndexDecl &index) const;

    const SqlDialect &m_dialect;
};
