#include "scriptparser.h"

#include "literals.h"
#include "scripterror.h"
#include "scripttexts.h"
#include "sqltokenizer.h"
#include "tokencursor.h"

#include <QHash>
#include <QStringList>
#include <QVarLengthArray>

namespace script {

namespace {

// How many characters of a statement an error quotes.
constexpr qsizetype quotedLength = 60;

QString kindKeyword(StatementKind kind)
{
    switch (kind) {
    case StatementKind::Insert:
        return QStringLiteral("INSERT");
    case StatementKind::Update:
        return QStringLiteral("UPDATE");
    case StatementKind::Delete:
        return QStringLiteral("DELETE");
    }
    return {};
}

// The first characters of a statement as written, with its blanks and line ends folded (the
// batch dialog indents its continuation lines by many blanks).
// Every statement keeps its quote, so this stops as soon as the quote is full rather than
// copying the statement.
QString quoteStatement(const QString &text, qsizetype begin, qsizetype end)
{
    QString quote;
    quote.reserve(quotedLength);
    bool blank = false;
    for (qsizetype i = begin; i < end && quote.size() < quotedLength; ++i) {
        const QChar c = text.at(i);
        // A control character is refused, and quoted as a blank so the message stays readable.
        if (c.isSpace() || c.category() == QChar::Other_Control) {
            blank = !quote.isEmpty();
            continue;
        }
        if (blank)
            quote.append(QLatin1Char(' '));
        blank = false;
        if (quote.size() < quotedLength)
            quote.append(c);
    }
    return quote;
}

bool startsLine(const QString &text, qsizetype begin)
{
    for (qsizetype i = begin - 1; i >= 0; --i) {
        const QChar c = text.at(i);
        if (c == QLatin1Char('\n') || c == QLatin1Char('\r'))
            return true;
        if (c != QLatin1Char(' ') && c != QLatin1Char('\t'))
            return false;
    }
    return true;
}

class StatementParser
{
public:
    StatementParser(const QString &text, TokenCursor &cursor, const SqlDialect &dialect)
        : m_text(text), m_cursor(cursor), m_dialect(dialect)
    {
    }

    bool atStatementStart() const
    {
        return m_cursor.isKeyword(QLatin1String("insert")) || m_cursor.isKeyword(QLatin1String("update"))
               || m_cursor.isKeyword(QLatin1String("delete"));
    }

    Statement parse()
    {
        Statement statement;
        m_values.clear();
        if (m_cursor.acceptKeyword(QLatin1String("insert")))
            parseInsert(statement);
        else if (m_cursor.acceptKeyword(QLatin1String("update")))
            parseUpdate(statement);
        else if (m_cursor.acceptKeyword(QLatin1String("delete")))
            parseDelete(statement);
        else
            m_cursor.failExpected(texts::statementStart);
        checkStatementEnd();
        statement.values = m_values;
        return statement;
    }

private:
    // A statement ends where the next one begins: on a new line or at its keyword. Anything else
    // after a complete statement on its line (OR, ';', a comment) belongs to it and refuses it.
    void checkStatementEnd() const
    {
        const Token &following = m_cursor.peek();
        if (following.kind == Token::Kind::End || startsLine(m_text, following.begin) || atStatementStart())
            return;
        m_cursor.failExpected(texts::statementStart);
    }

    const TableDef &table(StatementKind kind)
    {
        const Token &name = m_cursor.expectName(texts::tableName);
        const TableDef *&table = m_tables[name.text];
        if (!table)
            table = catalogue::findTable(name.text);
        if (!table)
            TokenCursor::fail(texts::unknownTable.arg(name.text));
        if (!(table->allowedKinds & int(kind)))
            TokenCursor::fail(texts::kindRefused.arg(QLatin1String(table->name), kindKeyword(kind)));
        return *table;
    }

    const ColumnDef &column(const TableDef &table)
    {
        const Token &name = m_cursor.expectName(texts::columnName);
        const ColumnDef *&column = m_columns[{&table, name.text}];
        if (!column)
            column = catalogue::findColumn(table, name.text);
        if (!column)
            TokenCursor::fail(texts::unknownColumn.arg(QLatin1String(table.name), name.text));
        return *column;
    }

    // The catalogue holds each column once, so a column named twice is the same entry.
    using SeenColumns = QVarLengthArray<const ColumnDef *, 32>;

    const ColumnDef &writableColumn(const TableDef &table, SeenColumns &seen)
    {
        const ColumnDef &target = column(table);
        if (!target.writable)
            TokenCursor::fail(texts::columnNotWritable.arg(QLatin1String(table.name), QLatin1String(target.name)));
        if (seen.contains(&target))
            TokenCursor::fail(texts::duplicateColumn.arg(QLatin1String(target.name)));
        seen.append(&target);
        return target;
    }

    QString name(const char *catalogueName) const { return m_dialect.identifier(QLatin1String(catalogueName)); }

    // Reads a literal, converts it to the column's kind and keeps it for binding.
    QString literal(const ColumnDef &column)
    {
        const Token &token = m_cursor.peek();
        if (token.kind != Token::Kind::String && token.kind != Token::Kind::Number)
            m_cursor.failExpected(texts::literal);
        m_values.append(value(column, token));
        m_cursor.next();
        return QStringLiteral("?");
    }

    static QVariant value(const ColumnDef &column, const Token &token)
    {
        const QString columnName = QLatin1String(column.name);
        switch (column.kind) {
        case ColumnKind::Integer:
            if (const std::optional<qlonglong> whole = literals::integerValue(token))
                return *whole;
            TokenCursor::fail(texts::needsInteger.arg(columnName, literals::written(token)));
        case ColumnKind::Real:
            if (const std::optional<double> real = literals::realValue(token))
                return *real;
            TokenCursor::fail(texts::needsNumber.arg(columnName, literals::written(token)));
        case ColumnKind::Text:
            return token.text;
        case ColumnKind::Date:
            // An empty date is kept as written: the controls write '' for a line without one.
            if (token.kind == Token::Kind::String && (token.text.isEmpty() || literals::isoDate(token.text)))
                return token.text;
            TokenCursor::fail(texts::needsDate.arg(columnName, literals::written(token)));
        }
        return {};
    }

    void parseInsert(Statement &statement)
    {
        m_cursor.expectKeyword(QLatin1String("into"));
        const TableDef &target = table(StatementKind::Insert);
        SeenColumns seen;
        QList<const ColumnDef *> columns;
        m_cursor.expectPunct(QLatin1String("("));
        do {
            TokenCursor::checkListLength(columns.size());
            columns.append(&writableColumn(target, seen));
        } while (m_cursor.acceptPunct(QLatin1String(",")));
        m_cursor.expectPunct(QLatin1String(")"));
        m_cursor.expectKeyword(QLatin1String("values"));
        m_cursor.expectPunct(QLatin1String("("));
        qsizetype written = 0;
        do {
            if (written == columns.size())
                TokenCursor::fail(texts::valueCount.arg(columns.size()).arg(columns.size() + 1));
            literal(*columns.at(written++));
        } while (m_cursor.acceptPunct(QLatin1String(",")));
        if (written != columns.size())
            TokenCursor::fail(texts::valueCount.arg(columns.size()).arg(written));
        m_cursor.expectPunct(QLatin1String(")"));

        statement.kind = StatementKind::Insert;
        statement.table = QLatin1String(target.name);
        statement.sql = insertSql(target, columns);
    }

    // The same column list gives the same statement, written once per script.
    QString insertSql(const TableDef &target, const QList<const ColumnDef *> &columns)
    {
        QString &sql = m_insertSql[columns];
        if (sql.isEmpty()) {
            QStringList names;
            QStringList placeholders;
            for (const ColumnDef *column : columns) {
                names.append(name(column->name));
                placeholders.append(QStringLiteral("?"));
            }
            sql = QStringLiteral("INSERT INTO %1 (%2) VALUES (%3)")
                      .arg(name(target.name), names.join(QLatin1String(", ")), placeholders.join(QLatin1String(", ")));
        }
        return sql;
    }

    void parseUpdate(Statement &statement)
    {
        const TableDef &target = table(StatementKind::Update);
        m_cursor.expectKeyword(QLatin1String("set"));
        SeenColumns seen;
        QStringList assignments;
        do {
            TokenCursor::checkListLength(assignments.size());
            const ColumnDef &column = writableColumn(target, seen);
            m_cursor.expectPunct(QLatin1String("="));
            assignments.append(name(column.name) + QLatin1String(" = ") + literal(column));
        } while (m_cursor.acceptPunct(QLatin1String(",")));
        m_cursor.expectKeyword(QLatin1String("where"));
        const QString condition = where(target);
        statement.kind = StatementKind::Update;
        statement.table = QLatin1String(target.name);
        statement.sql = QStringLiteral("UPDATE %1 SET %2 WHERE %3")
                            .arg(name(target.name), assignments.join(QLatin1String(", ")), condition);
    }

    void parseDelete(Statement &statement)
    {
        m_cursor.acceptKeyword(QLatin1String("from"));
        const TableDef &target = table(StatementKind::Delete);
        m_cursor.expectKeyword(QLatin1String("where"));
        const QString condition = where(target);
        statement.kind = StatementKind::Delete;
        statement.table = QLatin1String(target.name);
        statement.sql = QStringLiteral("DELETE FROM %1 WHERE %2").arg(name(target.name), condition);
    }

    // A condition on the table, checked against its keys.
    QString where(const TableDef &target)
    {
        QStringList pinned;
        const QString text = condition(target, pinned);
        checkKeys(target, pinned);
        return text;
    }

    static void checkKeys(const TableDef &target, const QStringList &pinned)
    {
        QStringList alternatives;
        for (const KeyDef &key : target.keys) {
            QStringList columns;
            bool complete = true;
            for (const char *column : key.columns) {
                columns.append(QLatin1String(column));
                complete = complete && pinned.contains(QLatin1String(column));
            }
            if (complete)
                return;
            alternatives.append(columns.join(texts::listSeparator));
        }
        if (!alternatives.isEmpty())
            TokenCursor::fail(texts::anchorMissing.arg(QLatin1String(target.name), alternatives.join(texts::alternativeSeparator)));
    }

    QString condition(const TableDef &target, QStringList &pinned)
    {
        QStringList terms{term(target, pinned)};
        while (m_cursor.acceptKeyword(QLatin1String("and"))) {
            TokenCursor::checkListLength(terms.size());
            terms.append(term(target, pinned));
        }
        return terms.join(QLatin1String(" AND "));
    }

    QString term(const TableDef &target, QStringList &pinned)
    {
        // Only AND joins terms, so a parenthesised group still pins its columns.
        if (m_cursor.acceptPunct(QLatin1String("("))) {
            const TokenCursor::Nesting level(m_cursor);
            const QString inner = condition(target, pinned);
            m_cursor.expectPunct(QLatin1String(")"));
            return QLatin1Char('(') + inner + QLatin1Char(')');
        }
        const ColumnDef &compared = column(target);
        const QString left = name(compared.name);
        if (m_cursor.acceptKeyword(QLatin1String("in"))) {
            m_cursor.expectPunct(QLatin1String("("));
            // A sub-select descends into another condition.
            const TokenCursor::Nesting level(m_cursor);
            QString list;
            if (m_cursor.isKeyword(QLatin1String("select"))) {
                list = subSelect(compared);
            } else {
                QStringList placeholders;
                do {
                    TokenCursor::checkListLength(placeholders.size());
                    placeholders.append(literal(compared));
                } while (m_cursor.acceptPunct(QLatin1String(",")));
                list = placeholders.join(QLatin1String(", "));
            }
            m_cursor.expectPunct(QLatin1String(")"));
            pinned.append(QLatin1String(compared.name));
            return left + QLatin1String(" IN (") + list + QLatin1Char(')');
        }
        static const QStringList operators{QStringLiteral("="), QStringLiteral("<>"), QStringLiteral("<"),
                                           QStringLiteral("<="), QStringLiteral(">"), QStringLiteral(">=")};
        const Token &op = m_cursor.peek();
        if (op.kind != Token::Kind::Punct || !operators.contains(op.text))
            m_cursor.failExpected(texts::comparison);
        const QString opText = m_cursor.next().text;
        if (opText == QLatin1String("="))
            pinned.append(QLatin1String(compared.name));
        return left + QLatin1Char(' ') + opText + QLatin1Char(' ') + literal(compared);
    }

    // "In (Select Distinct FSNListID From ICInvinitial Where ...)" of the serial-number deletes.
    QString subSelect(const ColumnDef &outer)
    {
        m_cursor.expectKeyword(QLatin1String("select"));
        const bool distinct = m_cursor.acceptKeyword(QLatin1String("distinct"));
        const Token &columnName = m_cursor.expectName(texts::columnName);
        m_cursor.expectKeyword(QLatin1String("from"));
        const Token &tableName = m_cursor.expectName(texts::tableName);
        const TableDef *source = catalogue::findTable(tableName.text);
        if (!source || !source->subSelectSource)
            TokenCursor::fail(texts::subSelectRefused.arg(tableName.text));
        const ColumnDef *selected = catalogue::findColumn(*source, columnName.text);
        if (!selected)
            TokenCursor::fail(texts::unknownColumn.arg(QLatin1String(source->name), columnName.text));
        if (selected != catalogue::findColumn(*source, QLatin1String(outer.name)))
            TokenCursor::fail(texts::subSelectColumn.arg(QLatin1String(outer.name)));
        m_cursor.expectKeyword(QLatin1String("where"));
        const QString condition = where(*source);
        return QStringLiteral("SELECT %1%2 FROM %3 WHERE %4")
            .arg(distinct ? QStringLiteral("DISTINCT ") : QString(), name(selected->name), name(source->name),
                 condition);
    }

    const QString &m_text;
    TokenCursor &m_cursor;
    const SqlDialect &m_dialect;
    QVariantList m_values;
    // A script names the same tables and columns over and over, as written; the catalogue is
    // searched once per spelling.
    QHash<QString, const TableDef *> m_tables;
    QHash<std::pair<const TableDef *, QString>, const ColumnDef *> m_columns;
    QHash<QList<const ColumnDef *>, QString> m_insertSql;
};

} // namespace

QList<Statement> parseScript(const QString &text, const SqlDialect &dialect)
{
    const QList<Token> tokens = tokenize(text);
    TokenCursor cursor(tokens);
    StatementParser parser(text, cursor, dialect);
    QList<Statement> statements;
    qsizetype index = 0; // token index where the current statement begins
    try {
        while (!cursor.atEnd()) {
            index = cursor.index();
            Statement statement = parser.parse();
            statement.number = int(statements.size()) + 1;
            statement.start = quoteStatement(text, tokens.at(index).begin, tokens.at(cursor.index() - 1).end);
            statements.append(std::move(statement));
        }
    } catch (const TokenCursor::Failure &failure) {
        const qsizetype begin = tokens.at(index).begin;
        throw ScriptError(int(statements.size()) + 1, quoteStatement(text, begin, text.size()), failure.message);
    }
    return statements;
}

} // namespace script
