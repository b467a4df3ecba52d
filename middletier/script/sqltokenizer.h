#pragma once

#include "token.h"

#include <QList>

namespace script {

// Splits a statement or filter text into tokens. Blanks, tabs and line ends only separate
// tokens. Keywords and names keep their spelling (callers compare them without regard to case).
// Comments ("--", "/* */"), ';', double-quoted or bracketed names, numbers with exponents and any
// other character outside a string literal end the list with an Error token followed by End.
QList<Token> tokenize(const QString &text);

} // namespace script
