#include "sheet/recordvalues.h"

#include "grid/gridtypes.h"

#include <QDateTime>

namespace {

constexpr int IsoDateLength = 10;
const QString CompactDateFormat = QStringLiteral("MMddyyyy");

} // namespace

namespace RecordValues {

bool flag(const QVariant &value)
{
    if (value.typeId() == QMetaType::QString) {
        const QString text = value.toString().trimmed();
        bool numeric = false;
        const double n = text.toDouble(&numeric);
        return numeric ? n != 0 : text.compare(QLatin1String("true"), Qt::CaseInsensitive) == 0;
    }
    return value.toBool();
}

QDate date(const QVariant &value)
{
    switch (value.typeId()) {
    case QMetaType::QDate:
        return value.toDate();
    case QMetaType::QDateTime:
        return value.toDateTime().date();
    default:
        break;
    }
    const QString text = value.toString().trimmed();
    const QDate iso = QDate::fromString(text.left(IsoDateLength), QString::fromLatin1(Grid::DateFormat));
    return iso.isValid() ? iso : QDate::fromString(text, CompactDateFormat);
}

} // namespace RecordValues
