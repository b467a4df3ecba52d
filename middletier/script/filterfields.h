#pragma once

#include <QList>
#include <QString>

#include <initializer_list>

namespace script {

// How a filter compares a field's values: as text, as numbers, or as "yyyy-mm-dd" dates.
enum class FieldKind { Text, Number, Date };

struct FilterField
{
    QString name;   // as the dialogs write it in a filter or sort text (FItemName, FNumber, ...)
    QString column; // the SQL expression the name stands for in the data set's query
    FieldKind kind = FieldKind::Text;
};

// The fields a data set declares for filtering or sorting. Only these names are accepted in a
// filter or sort text; the column expressions are the data set's own and are written as given.
class FilterFields
{
public:
    FilterFields() = default;
    FilterFields(std::initializer_list<FilterField> fields);

    void add(const QString &name, const QString &column, FieldKind kind);
    // Without regard to case; nullptr when the data set does not declare the name.
    const FilterField *find(const QString &name) const;
    const QList<FilterField> &fields() const { return m_fields; }

private:
    QList<FilterField> m_fields;
};

} // namespace script
