#include "recordset.h"

#include "lumoerror.h"

#include <QDate>
#include <QDateTime>

#include <algorithm>
#include <numeric>

namespace {

const QString source = QStringLiteral("Recordset");

// Nulls sort first; numbers compare as numbers, everything else as text.
int compareValues(const QVariant &a, const QVariant &b)
{
    if (a.isNull() || b.isNull())
        return a.isNull() == b.isNull() ? 0 : (a.isNull() ? -1 : 1);
    const auto numeric = [](const QVariant &v) {
        switch (v.typeId()) {
        case QMetaType::Int: case QMetaType::UInt: case QMetaType::LongLong: case QMetaType::ULongLong:
        case QMetaType::Double: case QMetaType::Float: case QMetaType::Short: case QMetaType::Bool:
            return true;
        default:
            return false;
        }
    };
    if (numeric(a) && numeric(b)) {
        const double x = a.toDouble();
        const double y = b.toDouble();
        return x < y ? -1 : (x > y ? 1 : 0);
    }
    return QString::compare(a.toString(), b.toString(), Qt::CaseInsensitive);
}

} // namespace

Recordset::Recordset(const QStringList &fields, QObject *parent)
    : QObject(parent)
{
    setFields(fields);
}

void Recordset::setFields(const QStringList &fields)
{
    m_fields = fields;
    m_fieldIndex.clear();
    m_declaredIndex.clear();
    for (int i = 0; i < fields.size(); ++i) {
        m_fieldIndex.insert(fields.at(i).toLower(), i);
        m_declaredIndex.insert(fields.at(i), i);
    }
}

void Recordset::reserve(int rows)
{
    m_rows.reserve(rows);
    m_order.reserve(rows);
}

void Recordset::appendRow(QVector<QVariant> row)
{
    row.resize(m_fields.size());
    m_order.append(int(m_rows.size()));
    m_rows.append(std::move(row));
}

int Recordset::fieldIndex(const QString &name) const
{
    const auto declared = m_declaredIndex.constFind(name);
    if (declared != m_declaredIndex.cend())
        return *declared;
    return m_fieldIndex.value(name.toLower(), -1);
}

QVariant Recordset::value(int row, int field) const
{
    if (row < 0 || row >= m_order.size() || field < 0 || field >= m_fields.size())
        return {};
    return m_rows.at(m_order.at(row)).at(field);
}

QVariant Recordset::value(int row, const QString &field) const
{
    return value(row, fieldIndex(field));
}

bool Recordset::atEnd() const
{
    return m_order.isEmpty() || m_position >= m_order.size();
}

bool Recordset::atStart() const
{
    return m_order.isEmpty() || m_position < 0;
}

void Recordset::setAbsolutePosition(int position)
{
    m_position = std::clamp(position - 1, -1, int(m_order.size()));
}

void Recordset::MoveFirst()
{
    m_position = 0;
}

void Recordset::MoveNext()
{
    if (m_position < m_order.size())
        ++m_position;
}

void Recordset::MovePrevious()
{
    if (m_position >= 0)
        --m_position;
}

void Recordset::MoveLast()
{
    m_position = int(m_order.size()) - 1;
}

int Recordset::currentRow() const
{
    if (m_position < 0 || m_position >= m_order.size())
        throw LumoError(LumoError::NoCurrentRecord, QStringLiteral("BOF 或 EOF 中有一个是“真”，或者当前记录已被删除"),
                        source);
    return m_order.at(m_position);
}

int Recordset::resolveField(const QVariant &nameOrIndex) const
{
    const bool isIndex = nameOrIndex.typeId() == QMetaType::Int || nameOrIndex.typeId() == QMetaType::LongLong
                         || nameOrIndex.typeId() == QMetaType::Double;
    const int index = isIndex ? nameOrIndex.toInt() : fieldIndex(nameOrIndex.toString());
    if (index < 0 || index >= m_fields.size())
        throw LumoError(LumoError::ItemNotFound,
                        QStringLiteral("在对应所需名称或序数的集合中，未找到项目：%1").arg(nameOrIndex.toString()), source);
    return index;
}

QVariant Recordset::Fields(const QVariant &nameOrIndex) const
{
    const int field = resolveField(nameOrIndex);
    return m_rows.at(currentRow()).at(field);
}

QString Recordset::FieldName(int index) const
{
    return m_fields.value(index);
}

void Recordset::setSort(const QString &sort)
{
    struct Key { int field; bool descending; };
    QVector<Key> keys;
    for (const QString &part : sort.split(QLatin1Char(','), Qt::SkipEmptyParts)) {
        const QStringList words = part.simplified().split(QLatin1Char(' '));
        Key key{resolveField(words.value(0)), false};
        if (words.size() > 1) {
            const QString direction = words.at(1).toUpper();
            if (direction != QLatin1String("ASC") && direction != QLatin1String("DESC"))
                throw LumoError(LumoError::InvalidArgument, QStringLiteral("排序方式无效：%1").arg(part), source);
            key.descending = direction == QLatin1String("DESC");
        }
        keys.append(key);
    }
    m_sort = sort;
    std::stable_sort(m_order.begin(), m_order.end(), [&](int a, int b) {
        for (const Key &key : keys) {
            const int c = compareValues(m_rows.at(a).at(key.field), m_rows.at(b).at(key.field));
            if (c != 0)
                return key.descending ? c > 0 : c < 0;
        }
        return false;
    });
    m_position = 0;
}
