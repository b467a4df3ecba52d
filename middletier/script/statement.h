#pragma once

#include "catalogue.h"

#include <QString>
#include <QVariantList>

namespace script {

// One accepted statement of a script, ready to run: the parameterised SQL in the chosen dialect
// and the values of its literals in placeholder order. Statements that differ only in their
// literals (and in letter case or blanks) have the same sql, so they share one prepared query.
struct Statement
{
    StatementKind kind = StatementKind::Insert;
    QString table;        // as the catalogue spells it
    QString sql;          // every literal replaced by '?'
    QVariantList values;  // typed by the column the literal is written to or compared with
    int number = 0;       // 1-based position in the script
    QString start;        // the first characters as written, blanks and line ends folded
};

} // namespace script
