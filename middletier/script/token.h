#pragma once

#include <QString>

namespace script {

// One token of a statement or filter text. Offsets point into the text the token came from, so
// an error can quote the statement as written.
struct Token
{
    enum class Kind {
        Name,   // keyword or name: ASCII letters, digits and '_', not starting with a digit
        String, // '...' literal; text holds the value, a doubled quote inside already single
        Number, // plain decimal text, optionally negative: 12, -3, 0.25, .5
        Punct,  // ( ) , . = <> < <= > >=
        End,    // end of the text
        Error,  // anything else; text holds the reason and nothing follows but End
    };

    Kind kind = Kind::End;
    QString text;
    qsizetype begin = 0;
    qsizetype end = 0;
};

} // namespace script
