#pragma once

#include "dialogs/ffsconditions.h"
#include "dialogs/findmatcher.h"
#include "frame/lumoicinitial_global.h"

// The find/filter/sort dialog without its widgets: the lines of the mode, what the user chose on
// them, and what OK makes of them.
class LUMOICINITIAL_EXPORT FfsSession
{
public:
    // What OK gave: the expression of a filter or sort, or why a line was refused (the line's index
    // and the message; nothing is stored then).
    struct Outcome
    {
        bool accepted = false;
        QString expression;
        QString message;
        int refusedLine = -1;
    };

    FfsMode mode = FfsMode::EntryItem;
    FfsAction action = FfsAction::Filter;
    bool useShortNumber = false;
    // The find options: fuzzy (optBlur) or exact (optMatch), case sensitive (optUL_Yes) or not.
    bool fuzzy = true;
    bool caseSensitive = false;

    // Rebuilds the lines of the mode, nothing chosen.
    void open();
    QVector<FfsCondition> &lines() { return m_lines; }
    const QVector<FfsCondition> &lines() const { return m_lines; }

    // Checks the lines and builds the action's expression. A filter is also left in the library's
    // filter settings under "Filter" and "ActualFilter" (and its second form under
    // "VirtualFilter"), a sort under "Sort".
    Outcome accept();
    // The find of the accepted lines.
    FindMatcher matcher() const { return FindMatcher(m_lines, fuzzy, caseSensitive); }

private:
    QVector<FfsCondition> m_lines;
};
