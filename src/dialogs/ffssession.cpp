#include "ffssession.h"

#include "frame/librarystate.h"

#include "frame/automation/dictionary.h"

namespace {

void storeFilter(const QString &key, const QString &text)
{
    if (Dictionary *filters = LibraryState::instance().filters())
        filters->setItem(key, text);
}

} // namespace

void FfsSession::open()
{
    m_lines = FfsConditions::table(mode, useShortNumber);
}

FfsSession::Outcome FfsSession::accept()
{
    Outcome outcome;
    if (action != FfsAction::Sort) {
        for (int i = 0; i < m_lines.size(); ++i) {
            const QString refused = FfsConditions::refusal(m_lines.at(i));
            if (!refused.isEmpty()) {
                outcome.message = refused;
                outcome.refusedLine = i;
                return outcome;
            }
        }
    }
    outcome.accepted = true;
    switch (action) {
    case FfsAction::Filter:
        outcome.expression = FfsConditions::filterExpression(m_lines);
        storeFilter(FilterKey::Filter, outcome.expression);
        storeFilter(FilterKey::ActualFilter, outcome.expression);
        // The rows are filtered by the names the data service declares, which are the ones the
        // lines carry, so the second form is the same text.
        storeFilter(FilterKey::VirtualFilter, outcome.expression);
        break;
    case FfsAction::Sort:
        outcome.expression = FfsConditions::sortExpression(m_lines);
        storeFilter(FilterKey::Sort, outcome.expression);
        break;
    case FfsAction::Find:
        // The opener reads the lines and options through matcher().
        break;
    }
    return outcome;
}
