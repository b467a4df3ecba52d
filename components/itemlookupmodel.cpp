#include "itemlookupmodel.h"

#include "frame/automation/recordset.h"

namespace {

const QString NumberField = QStringLiteral("FNumber");
const QString ItemIdField = QStringLiteral("FItemID");

// The field each column shows, and its title.
struct ColumnSpec
{
    QString field;
    QString title;
};

const ColumnSpec &columnSpec(int column)
{
    static const ColumnSpec specs[ItemLookupModel::ColumnCount] = {
        {NumberField, QStringLiteral("代码")},
        {QStringLiteral("FShortNumber"), QStringLiteral("短代码")},
        {QStringLiteral("FName"), QStringLiteral("名称")},
        {QStringLiteral("FModel"), QStringLiteral("规格型号")},
        {QStringLiteral("FUnitName"), QStringLiteral("计量单位")},
    };
    return specs[column];
}

} // namespace

ItemLookupModel::ItemLookupModel(PageSource source, int pageSize, QObject *parent)
    : QAbstractTableModel(parent)
    , m_source(std::move(source))
    , m_pageSize(pageSize)
{
}

void ItemLookupModel::setPattern(const QString &pattern)
{
    beginResetModel();
    m_pattern = pattern;
    m_rows.clear();
    // Whoever listens to the reset must not fetch the first page inside it.
    m_atEnd = true;
    endResetModel();
    m_atEnd = false;
    fetchMore({});
}

QVariantMap ItemLookupModel::record(int row) const
{
    QVariantMap fields;
    if (row < 0 || row >= m_rows.size())
        return fields;
    for (int f = 0; f < m_fields.size(); ++f)
        fields.insert(m_fields.at(f), m_rows.at(row).at(f));
    return fields;
}

int ItemLookupModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(m_rows.size());
}

int ItemLookupModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : ColumnCount;
}

QVariant ItemLookupModel::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid) || role != Qt::DisplayRole)
        return {};
    return field(index.row(), columnSpec(index.column()).field);
}

QVariant ItemLookupModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole || section < 0 || section >= ColumnCount)
        return QAbstractTableModel::headerData(section, orientation, role);
    return columnSpec(section).title;
}

bool ItemLookupModel::canFetchMore(const QModelIndex &parent) const
{
    return !parent.isValid() && !m_atEnd;
}

void ItemLookupModel::fetchMore(const QModelIndex &parent)
{
    if (!canFetchMore(parent))
        return;
    const int last = int(m_rows.size()) - 1;
    const QString afterNumber = last < 0 ? QString() : field(last, NumberField).toString();
    const int afterId = last < 0 ? 0 : field(last, ItemIdField).toInt();
    // Nothing more is fetched while this page is read and inserted (views and testers ask from
    // the insertion signals); a source that fails ends the list rather than being asked again.
    m_atEnd = true;
    const std::unique_ptr<Recordset> page = m_source(m_pattern, afterNumber, afterId, m_pageSize);
    if (m_fields.isEmpty())
        m_fields = page->fieldNames();
    const int count = page->RecordCount();
    if (count > 0) {
        beginInsertRows({}, int(m_rows.size()), int(m_rows.size()) + count - 1);
        for (int r = 0; r < count; ++r) {
            QVector<QVariant> row(m_fields.size());
            for (int f = 0; f < m_fields.size(); ++f)
                row[f] = page->value(r, m_fields.at(f));
            m_rows.append(std::move(row));
        }
        endInsertRows();
    }
    m_atEnd = count < m_pageSize;
}

QVariant ItemLookupModel::field(int row, const QString &name) const
{
    const int f = int(m_fields.indexOf(name));
    return f < 0 ? QVariant() : m_rows.at(row).at(f);
}
