// Any text as a save script and as a read statement, on both dialects: the parser answers with
// statements or a ScriptError, never a crash, a hang or undefined behaviour.
#include "script/readstatement.h"
#include "script/scripterror.h"
#include "script/scriptparser.h"
#include "script/sqltokenizer.h"

#include <QString>

#include <cstddef>
#include <cstdint>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QString text = QString::fromUtf8(reinterpret_cast<const char *>(data), qsizetype(size));
    script::tokenize(text);
    for (const SqlBackend backend : {SqlBackend::SQLite, SqlBackend::PostgreSQL}) {
        const SqlDialect &dialect = SqlDialect::of(backend);
        try {
            script::parseScript(text, dialect);
        } catch (const script::ScriptError &) {
        }
        try {
            script::checkRead(text, dialect);
        } catch (const script::ScriptError &) {
        }
    }
    return 0;
}
