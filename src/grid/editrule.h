#pragma once

// What an item grid decides about editing beyond the lock its styles carry: whether a cell may be
// edited or its button clicked follows what the row holds (a batch item's figures, a totals row),
// so the model asks the rule instead of every load painting locks into the cells.
class EditRule
{
public:
    virtual ~EditRule() = default;
    // Whether the cell is locked; `styleLocked` is the lock its styles carry.
    virtual bool locked(int row, int col, bool styleLocked) const = 0;
};
