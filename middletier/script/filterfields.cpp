#include "filterfields.h"

namespace script {

FilterFields::FilterFields(std::initializer_list<FilterField> fields)
    : m_fields(fields)
{
}

void FilterFields::add(const QString &name, const QString &column, FieldKind kind)
{
    m_fields.append({name, column, kind});
}

const FilterField *FilterFields::find(const QString &name) const
{
    for (const FilterField &field : m_fields) {
        if (field.name.compare(name, Qt::CaseInsensitive) == 0)
            return &field;
    }
    return nullptr;
}

} // namespace script
