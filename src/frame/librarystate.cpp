#include "librarystate.h"

#include "frame/automation/dictionary.h"

LibraryState &LibraryState::instance()
{
    static LibraryState state;
    return state;
}

void LibraryState::createFilters()
{
    m_filters = std::make_unique<Dictionary>();
    for (const QString &key : {FilterKey::ActualFilter, FilterKey::VirtualFilter, FilterKey::Filter, FilterKey::Sort})
        m_filters->Add(key, QString());
}

void LibraryState::releaseFilters()
{
    m_filters.reset();
}
