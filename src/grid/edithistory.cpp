#include "grid/edithistory.h"

#include <algorithm>
#include <utility>

void EditHistory::beginStep()
{
    ++m_depth;
}

void EditHistory::endStep()
{
    if (m_depth == 0 || --m_depth > 0)
        return;
    m_newRows.clear();
    if (m_open.isEmpty())
        return;
    m_undo.append(std::exchange(m_open, {}));
    m_redo.clear();
}

void EditHistory::record(int row, int col, const Cell &before, const Cell &after)
{
    // A cell changed twice keeps both changes: put back in reverse order they end where they
    // began, and a part taken back (a refused pasted row) leaves the earlier change whole.
    if (m_depth > 0 && !isNewRow(row) && !before.sameContent(after))
        m_open.append({row, col, before, after});
}

EditHistory::Step EditHistory::takeSince(qsizetype mark)
{
    Step taken = m_open.mid(mark);
    m_open.resize(std::min(mark, m_open.size()));
    return taken;
}

bool EditHistory::isNewRow(int row) const
{
    return std::any_of(m_newRows.cbegin(), m_newRows.cend(),
                       [row](const auto &range) { return row >= range.first && row < range.first + range.second; });
}

namespace {

// Moves the kept rows at or after `first` by `delta`; with a negative delta the rows removed,
// first to first - delta - 1, lose their changes.
void shiftRows(EditHistory::Step &step, int first, int delta)
{
    step.removeIf([&](const EditHistory::Change &c) { return delta < 0 && c.row >= first && c.row < first - delta; });
    for (EditHistory::Change &change : step) {
        if (change.row >= first)
            change.row += delta;
    }
}

} // namespace

void EditHistory::rowsInserted(int first, int count)
{
    for (QList<Step> *side : {&m_undo, &m_redo}) {
        for (Step &step : *side)
            shiftRows(step, first, count);
    }
    shiftRows(m_open, first, count);
    for (auto &range : m_newRows) {
        if (range.first >= first)
            range.first += count;
        else if (first < range.first + range.second)
            range.second += count;
    }
    if (m_depth > 0)
        m_newRows.append({first, count});
}

void EditHistory::rowsRemoved(int first, int count)
{
    for (QList<Step> *side : {&m_undo, &m_redo}) {
        for (Step &step : *side)
            shiftRows(step, first, -count);
        side->removeIf([](const Step &step) { return step.isEmpty(); });
    }
    shiftRows(m_open, first, -count);
    const int end = first + count;
    for (auto &range : m_newRows) {
        const int rangeEnd = range.first + range.second;
        const int kept = std::max(0, std::min(rangeEnd, first) - range.first) + std::max(0, rangeEnd - std::max(range.first, end));
        range.first = range.first < first ? range.first : std::max(first, range.first - count);
        range.second = kept;
    }
}

EditHistory::Step EditHistory::takeUndo()
{
    if (m_undo.isEmpty())
        return {};
    Step step = m_undo.takeLast();
    m_redo.append(step);
    return step;
}

EditHistory::Step EditHistory::takeRedo()
{
    if (m_redo.isEmpty())
        return {};
    Step step = m_redo.takeLast();
    m_undo.append(step);
    return step;
}

void EditHistory::clear()
{
    m_undo.clear();
    m_redo.clear();
    m_open.clear();
    m_newRows.clear();
}
