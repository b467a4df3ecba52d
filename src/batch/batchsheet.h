#pragma once

#include "sheet/iteminfo.h"
#include "batch/batchlayout.h"
#include "batch/batchline.h"
#include "frame/lumoicinitial_global.h"

#include <QColor>
#include <QList>
#include <QStringList>

#include <functional>
#include <optional>

class CellModel;
class Recordset;

// How the batch grid looks for one opening.
struct BatchSheetLook
{
    int amountScale = 2;
    bool quantitiesOnly = false; // amount and difference columns hidden
    bool secondaryShown = false; // the item row has a secondary unit
    QColor lockColor;            // locked lines
    QColor sumColor;             // the totals row
    QColor inputColor;           // the line on which the totals to apportion are typed
};

// The caption of the grid's mode: what the lines hold for this item and accounting.
LUMOICINITIAL_EXPORT QString batchModeCaption(const ItemInfo &item, bool quantitiesOnly);

// The cells of the batch grid: the detail lines in rows 1 to lineCount(), then the totals row
// "合计", then, while amounts are apportioned, the input line. Knows where everything is and how
// it looks; the rules live elsewhere.
class LUMOICINITIAL_EXPORT BatchSheet
{
public:
    explicit BatchSheet(CellModel &cells);

    // Empties the grid and lays it out for the item: titles, cell types and formats, hidden
    // columns, and an empty totals row.
    void build(const ItemInfo &item, const BatchSheetLook &look);

    int lineCount() const;
    bool isLine(int row) const { return row >= 1 && row <= lineCount(); }
    int totalsRow() const { return lineCount() + 1; }
    // -1 while amounts are not apportioned.
    int inputRow() const { return m_inputOpen ? totalsRow() + 1 : -1; }

    // One line per record, in the record order; `defaultStockIn` for a record without a stock-in
    // date. `progress` hears the number of lines filled so far.
    void fillLines(const Recordset &records, const QDate &defaultStockIn, const std::function<void(int)> &progress);
    // A new, changed line before the totals row; its row.
    int appendLine(const QDate &stockIn, std::optional<qint32> kfPeriod, qint32 billInterId);
    void removeLine(int row);

    BatchLine line(int row) const;
    QList<BatchLine> lines() const;
    // The batch numbers of every line except `row`.
    QStringList otherBatchNumbers(int row) const;
    // The highest sequence number the lines hold; 0 without lines.
    qint32 highestBillInterId() const;

    void setFigure(int row, int col, double value);
    void markChanged(int row);
    // After a save: no line is changed, and what the lines hold now is what was loaded.
    void markSaved();
    void refreshTotals();
    // Paints the columns of the unbalanced kinds of the line and clears marks of the others.
    void markUnbalanced(int row, const QList<FigureKind> &kinds);
    // In words, why the marked line does not balance, with its figures as shown; empty when the
    // line carries no mark.
    QString balanceNote(int row) const;

    void openInputLine();
    void closeInputLine();
    // The total typed on the input line in an amount column; 0 when empty or closed.
    double inputTotal(int col) const;
    // The quantity cells of a column, nullopt where empty.
    QList<std::optional<double>> quantities(int col) const;
    // Quantity cells of a column back to the item's decimals.
    void resetQuantityDecimals(int col);

private:
    void setLineQuantityDecimals(int row, int decimals);
    void paintLocked(int row);

    CellModel &m_cells;
    ItemInfo m_item;
    BatchSheetLook m_look;
    bool m_inputOpen = false;
};
