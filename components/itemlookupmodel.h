#pragma once

#include "components_global.h"

#include <QAbstractTableModel>
#include <QStringList>
#include <QVariantMap>
#include <QVector>

#include <functional>
#include <memory>

class Recordset;

// The items of the look-up, read a page at a time as the view scrolls: only the pages shown so
// far are held. The page source answers the items matching the text after an item's code and id.
class LUMOSUITECOMPONENTS_EXPORT ItemLookupModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    using PageSource = std::function<std::unique_ptr<Recordset>(const QString &pattern, const QString &afterNumber,
                                                                int afterId, int count)>;
    enum Column { Number, ShortNumber, Name, Model, Unit, ColumnCount };
    static constexpr int PageSize = 50;

    explicit ItemLookupModel(PageSource source, int pageSize = PageSize, QObject *parent = nullptr);

    // Starts over with the items matching `pattern`, reading the first page.
    void setPattern(const QString &pattern);
    const QString &pattern() const { return m_pattern; }
    // Every field of the item on `row`, by the page source's field names.
    QVariantMap record(int row) const;
    bool atEnd() const { return m_atEnd; }

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;
    bool canFetchMore(const QModelIndex &parent) const override;
    void fetchMore(const QModelIndex &parent) override;

private:
    QVariant field(int row, const QString &name) const;

    PageSource m_source;
    const int m_pageSize;
    QString m_pattern;
    QStringList m_fields;
    QVector<QVector<QVariant>> m_rows;
    bool m_atEnd = true;
};
