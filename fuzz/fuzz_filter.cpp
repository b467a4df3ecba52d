// Any text as a filter and as a sort over fields of each kind: a bound condition, an order list
// or a FilterError, never a crash, a hang or undefined behaviour.
#include "script/filtererror.h"
#include "script/filterparser.h"

#include <QString>

#include <cstddef>
#include <cstdint>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    static const script::FilterFields fields{
        {QStringLiteral("FNumber"), QStringLiteral("i.FNumber"), script::FieldKind::Text},
        {QStringLiteral("FItemName"), QStringLiteral("i.FName"), script::FieldKind::Text},
        {QStringLiteral("FBegQty"), QStringLiteral("v.FBegQty"), script::FieldKind::Number},
        {QStringLiteral("FStockInDate"), QStringLiteral("v.FStockInDate"), script::FieldKind::Date},
    };
    const QString text = QString::fromUtf8(reinterpret_cast<const char *>(data), qsizetype(size));
    for (const SqlBackend backend : {SqlBackend::SQLite, SqlBackend::PostgreSQL}) {
        const script::FilterParser parser(fields, SqlDialect::of(backend));
        try {
            parser.where(text);
        } catch (const script::FilterError &) {
        }
        try {
            parser.orderBy(text);
        } catch (const script::FilterError &) {
        }
    }
    return 0;
}
