#include "bulkinserter.h"

#include "dialect/sqldialect.h"
#include "sqlrun.h"

namespace {

// Beyond a few hundred rows per statement nothing is gained on either backend.
constexpr int MaxRowsPerStatement = 200;

} // namespace

BulkInserter::BulkInserter(const QSqlDatabase &db, const SqlDialect &dialect, const QString &table,
                           const QStringList &columns)
    : m_db(db)
    , m_table(table)
    , m_columns(columns)
    , m_rowsPerStatement(
          qBound(1, dialect.maxBindValues() / int(qMax<qsizetype>(1, columns.size())), MaxRowsPerStatement))
    , m_fullBatch(db)
{
    m_fullBatch.setForwardOnly(true);
    const QString sql = insertText(m_rowsPerStatement);
    if (!m_fullBatch.prepare(sql))
        SqlRun::fail(m_fullBatch, sql);
    m_pending.reserve(m_rowsPerStatement * columns.size());
}

BulkInserter::~BulkInserter() = default;

QString BulkInserter::insertText(int rows) const
{
    QStringList marks;
    marks.reserve(m_columns.size());
    for (qsizetype i = 0; i < m_columns.size(); ++i)
        marks.append(QStringLiteral("?"));
    const QString tuple = QLatin1Char('(') + marks.join(QLatin1Char(',')) + QLatin1Char(')');
    QStringList tuples;
    tuples.reserve(rows);
    for (int i = 0; i < rows; ++i)
        tuples.append(tuple);
    return QStringLiteral("INSERT INTO %1 (%2) VALUES %3")
        .arg(m_table, m_columns.join(QLatin1Char(',')), tuples.join(QLatin1Char(',')));
}

void BulkInserter::execute(QSqlQuery &query, const QString &sql)
{
    for (qsizetype i = 0; i < m_pending.size(); ++i)
        query.bindValue(int(i), m_pending.at(i));
    if (!query.exec())
        SqlRun::fail(query, sql);
    m_written += m_pending.size() / m_columns.size();
    m_pending.clear();
}

void BulkInserter::add(const QVariantList &row)
{
    Q_ASSERT(row.size() == m_columns.size());
    m_pending += row;
    if (m_pending.size() == qsizetype(m_rowsPerStatement) * m_columns.size())
        execute(m_fullBatch, m_fullBatch.lastQuery());
}

void BulkInserter::flush()
{
    if (m_pending.isEmpty())
        return;
    const int rows = int(m_pending.size() / m_columns.size());
    const QString sql = insertText(rows);
    QSqlQuery tail(m_db);
    if (!tail.prepare(sql))
        SqlRun::fail(tail, sql);
    execute(tail, sql);
}
