#pragma once

#include "sheet/entrygridlayout.h"
#include "sheet/iteminfo.h"
#include "sheet/itemrows.h"
#include "frame/lumoicinitial_global.h"
#include "grid/editrule.h"

#include <QHash>
#include <QObject>
#include <QPointer>

#include <array>
#include <memory>

class CellModel;
class Recordset;
class SpreadGrid;

// The place whose rows the entry grid shows.
struct EntryPlace
{
    qint32 stockId = 0;
    qint32 spId = 0;
    qint16 stockType = 0;
};

// The content of the entry grid: one page of item rows of one place, the unfolded batch lines,
// the grand-total row and the per-item information beside them. It is also the grid's edit rule:
// what may be typed follows the kind of row and its item.
class LUMOICINITIAL_EXPORT EntrySheet : public QObject, public EditRule
{
    Q_OBJECT

public:
    static constexpr int TotalsMark = -100;

    EntrySheet(SpreadGrid &grid, QObject *parent = nullptr);
    ~EntrySheet() override;

    void setPlace(const EntryPlace &place) { m_place = place; }
    const EntryPlace &place() const { return m_place; }
    void setAmountScale(int scale) { m_amountScale = scale; }
    int amountScale() const { return m_amountScale; }

    // Loads page `pageIndex` (from 1) of the place with the library's filters; errors propagate.
    void loadPage(int pageIndex, int pageSize);
    int pageIndex() const { return m_pageIndex; }
    int totalPages() const { return m_totalPages; }
    int recordCount() const { return m_recordCount; }
    // "3/12", or "0/0" for a place without records.
    QString pageLabel() const;
    // Empties the grid (the root and places without rows).
    void clear();

    // Rows: item rows, unfolded batch lines, new rows, and the totals row at the end.
    bool isTotalsRow(int row) const;
    bool isBatchLine(int row) const;
    bool isItemRow(int row) const;
    bool isNewRow(int row) const;
    // The last row that holds an item or a batch line.
    int lastDataRow() const;
    const ItemInfo *itemInfo(int itemId) const;
    void setItemInfo(const ItemInfo &info) { m_infos.insert(info.id, info); }

    // Unfolding: inserts the item's batch lines under its row ("+" becomes "-"), or removes
    // exactly the rows it inserted ("-" becomes "+"). False for rows without batch lines.
    bool toggleBatchLines(int row);
    bool isExpanded(int row) const;

    // Appends a new empty row before the totals row; its number.
    int addNewRow();
    // Removes an item row (not an expanded one) and answers its "itemId|auxPropId" text when it
    // was a saved row, empty for a new one.
    QString removeItemRow(int row);

    // A saved new row becomes a loaded row: its code is no longer typed.
    void markRowSaved(int row);
    // The name of an auxiliary class of an item shown.
    QString auxClassName(qint32 auxClassId) const;

    // The grand-total row: on the last page only, summed from the grid for one page, from the
    // whole place's totals for several.
    void refreshTotals();
    // The same after the place's rows were written: the whole place's totals are fetched again.
    void refetchTotals();
    // Rewrites one loaded item row, and the totals, from the database (after the batch dialog
    // wrote its lines), leaving every other row as it is; false when the row is not found.
    bool refreshItemRow(int row);
    // The row of the grand total; 0 when none is shown.
    int totalsRow() const;

    bool locked(int row, int col, bool styleLocked) const override;

    SpreadGrid &grid() const { return m_grid; }
    CellModel &cells() const;
    const RowColors &colors() const { return m_colors; }
    // Paints every kind of row and cell with `colors` at once, as after the colour dialog's OK.
    void setColors(const RowColors &colors);
    // Marks the rows with the "Find" colour; the marks of an earlier find are taken away.
    void markFound(const QVector<int> &rows);

private:
    int qtyDecimal() const;
    void clearFound();
    // Fetches page `pageIndex` of the place: answers its rows, keeps its totals and page counts.
    std::unique_ptr<Recordset> fetchPage(int pageIndex);
    void removeTotalsRow();
    using Figures = std::array<double, EntryCol::Count>;
    // The summed figures of the grid's item rows, or of one row.
    Figures pageFigures() const;
    Figures rowFigures(int row) const;

    SpreadGrid &m_grid;
    QPointer<CellModel> m_model; // the grid may go first when the control closes
    EntryPlace m_place;
    int m_amountScale = 2;
    int m_pageIndex = 0;
    int m_pageSize = 1;
    int m_totalPages = 0;
    int m_recordCount = 0;
    bool m_useShortNumber = false;
    RowColors m_colors;
    QHash<int, ItemInfo> m_infos;
    std::unique_ptr<Recordset> m_totals;   // over the whole place and filter
    // What the kept totals hold of the rows in the grid: the page as loaded or last saved. The
    // "总计" row of a place of several pages is the kept totals with the page's edits since.
    Figures m_keptPageFigures{};
    QHash<QString, int> m_expanded;        // item row key -> batch lines inserted under it
    // The kind of every grid row, kept in step with every insert and removal the sheet makes.
    enum class RowKind : quint8 { Header, Item, NewItem, BatchLine, Totals };
    QVector<RowKind> m_kinds;
};
