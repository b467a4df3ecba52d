#pragma once

#include "boundsql.h"
#include "filterfields.h"

#include "dialect/sqldialect.h"

namespace script {

// Turns the filter and sort texts of the find/filter/sort dialog and of the filter dialog into
// SQL fragments over the fields a data set declares. Keywords are read without regard to case;
// blanks and line ends only separate.
//
// Filter text:
//   filter := [WHERE] [1=1 [AND]] [expr] [AND | OR]
//   expr   := conj [OR conj ...]          conj := factor [AND factor ...]
//   factor := ( expr )
//           | field op value              op: = <> < <= > >=
//           | field [NOT] LIKE 'text'     (the dialogs write the % wildcards themselves)
//   field  := a declared name, optionally qualified (t1.FNumber)
//   value  := 'text' (a quote inside doubled) | plain decimal number (-1, 100, 0.5)
// So both " where 1=1 and " (nothing chosen) and the empty text mean no condition, and the
// connective the filter dialog leaves after its last line is dropped. A number field takes a
// number or a quoted number ('10'); a date field a quoted date written yyyy-mm-dd, yyyy/m/d or
// mmddyyyy; a text field any value, a number as written.
//
// Sort text:
//   sort := [item [, item ...]]           item := field [ASC | DESC]
//
// Parentheses nest at most TokenCursor::maxNesting (64) deep; the OR parts of an expression,
// the AND parts of a conjunction and the items of a sort list are at most
// TokenCursor::maxListItems (1000) each.
//
// Every value is bound, never written into the SQL; an undeclared field, another operator, a
// function, a comment, ';' or anything else throws FilterError, so a value can only ever be
// compared as data.
class FilterParser
{
public:
    explicit FilterParser(FilterFields fields, const SqlDialect &dialect = SqlDialect::of(SqlBackend::SQLite));

    // The condition for a WHERE clause, without the keyword and in parentheses, so it can be
    // joined to the data set's own conditions with AND; empty when the filter has no condition.
    BoundSql where(const QString &filter) const;
    // The list for an ORDER BY clause, without the keywords ("col ASC, col2 DESC"); empty when
    // the text names no field.
    QString orderBy(const QString &sort) const;

private:
    FilterFields m_fields;
    const SqlDialect &m_dialect;
};

} // namespace script
