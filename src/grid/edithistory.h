#pragma once

#include "grid/cell.h"

#include <QList>

// The edits not yet saved, for undo and redo. One step is everything one edit changed: the cell
// typed into and what its handlers wrote in consequence (a row's changed flag, a name filled in
// from a code), or every cell of one paste or one delete. Cells are kept by position: rows
// inserted or removed move the kept positions along, and the cells of a row made during a step
// are not kept, since that row did not exist before it.
class EditHistory
{
public:
    struct Change
    {
        int row = 0;
        int col = 0;
        Cell before;
        Cell after;
    };
    using Step = QList<Change>;

    // Steps nest: what happens until the outermost endStep() is one step.
    void beginStep();
    void endStep();
    bool isRecording() const { return m_depth > 0; }
    // Notes a cell's content as it was and as it becomes; nothing outside a step.
    void record(int row, int col, const Cell &before, const Cell &after);
    // Where the open step stands, and taking back what it recorded since then (the changes
    // answered last first are the latest).
    qsizetype mark() const { return m_open.size(); }
    Step takeSince(qsizetype mark);

    void rowsInserted(int first, int count);
    void rowsRemoved(int first, int count);

    bool canUndo() const { return !m_undo.isEmpty(); }
    bool canRedo() const { return !m_redo.isEmpty(); }
    // The step to put back, moved over to the redo side (and the other way round); empty when
    // there is none.
    Step takeUndo();
    Step takeRedo();
    void clear();

private:
    bool isNewRow(int row) const;

    QList<Step> m_undo;
    QList<Step> m_redo;
    Step m_open;
    QList<std::pair<int, int>> m_newRows;  // first and count of the rows made during the open step
    int m_depth = 0;
};
