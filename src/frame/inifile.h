#pragma once

#include "lumoicinitial_global.h"

#include <QString>

// The private-profile read of the suite's INI files: sections and keys without regard to case,
// the first match wins, a value is the text after "=" with blanks and one pair of enclosing
// quotes removed. The answer fits a buffer of `bufferSize` characters with its terminator, so at
// most bufferSize - 1 characters come back. A missing file, section or key gives the default.
LUMOICINITIAL_EXPORT QString readPrivateProfileString(const QString &file, const QString &section, const QString &key,
                                                      const QString &defaultValue, int bufferSize);

// ReadIniString: the read with the 255-character buffer the library has always used.
LUMOICINITIAL_EXPORT QString ReadIniString(const QString &file, const QString &section, const QString &key,
                                           const QString &defaultValue);
