#pragma once

#include "statement.h"

#include "dialect/sqldialect.h"

#include <QList>

namespace script {

// Parses a script written by the controls: statements one after the other, separated only by
// blanks and line ends (CR LF), each one of these shapes (keywords and names in any case):
//
//   INSERT INTO table (column, ...) VALUES (literal, ...)
//   UPDATE table SET column = literal, ... WHERE condition
//   DELETE [FROM] table WHERE condition
//
//   condition := term [AND term ...]
//   term      := column op literal                    op: = <> < <= > >=
//              | column IN (literal, ...)
//              | column IN (SELECT [DISTINCT] column FROM table WHERE condition)
//              | ( condition )
//   literal   := 'text' (a quote inside doubled) | plain decimal number (-12, 0.5)
//
// Parentheses (those of IN included) nest at most TokenCursor::maxNesting (64) deep; a column
// list, a SET list, an IN list and the terms of one condition hold at most
// TokenCursor::maxListItems (1000) items each.
//
// Tables, statement kinds and columns are checked against the catalogue (catalogue.h), literals
// against the column's kind, and every WHERE against the table's keys. Anything else - another
// statement kind, OR, functions, comments, ';', NULL - refuses the whole script. Throws
// ScriptError naming the first refused statement; an empty or blank script gives no statements.
QList<Statement> parseScript(const QString &text, const SqlDialect &dialect = SqlDialect::of(SqlBackend::SQLite));

} // namespace script
