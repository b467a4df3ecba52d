#pragma once

#include "entry/controlmode.h"

#include "sheet/warehousetable.h"

#include <QVector>
#include <Qt>

#include <memory>

class EntryFinding;
class EntrySaver;
class EntrySheet;
class ICInitCtl;
class NavTree;
class PageBar;
class QComboBox;
class QString;
class QVariant;
class SpreadGrid;
class frmBatchManager;

// Entry mode: the warehouse tree, one page of a place's item rows, editing with the balance rules,
// saving, adding and deleting rows, the batch dialog and the grand total.
class EntryMode : public ControlMode
{
public:
    explicit EntryMode(ICInitCtl &ctl);
    ~EntryMode() override;

    bool isEntry() const override { return true; }
    QString titleKey(bool stockProduct) const override;
    QString selectorKey() const override;
    void loadTree() override { LoadingStocks(); }

    void LoadingStocks();
    const QVector<WarehouseEntry> &stocks() const { return m_stocks; }
    EntrySaver *saver() const { return m_saver.get(); }
    EntryFinding *finding() const { return m_finding.get(); }

    // Opens the warehouse chosen in the selector when the user asked for it at start-up.
    void openDefaultStock();
    // Loads page `pageIndex` of the current node into the grid (nothing outside entry mode).
    void loadRows(int pageIndex);
    // After a node's rows are shown: the selector follows, and the commands that need item rows.
    void nodeShown(int index);
    void PageCommand(const QString &key);
    bool SaveData();
    bool confirmLeave();
    // Before the frame closes: Yes saves (a failed save keeps it open), No drops the changes,
    // Cancel keeps the frame and the changes.
    bool confirmClose();
    int AddNewRow();
    // The item look-up (F7, "mcVSearch", "mcVLookUp"): the picked item fills the current new
    // row, or a row added for it; false when nothing was entered.
    bool lookUpItem();
    bool DeleteCurrentRow();
    std::unique_ptr<frmBatchManager> batchDialogFor(int row);
    bool showTotals();
    // The calculator: a result the user closes it with goes into the current cell when the user
    // says Yes, through the edit path, so it meets the checks a typed value does.
    void calculateIntoCell();
    void setSaveEnabled(bool enabled);
    // The page properties and the page bar follow the sheet.
    void showPages();

private:
    void fillStockList();
    bool canAddRows() const;
    void markRowChanged(int row);
    bool checkEditedGroup(int row, int col, const QVariant &value);
    void onAfterEdit(int row, int col);
    void onCellClicked(int row, int col);
    // The page keys go through the page bar's commands; Space, "+" and "-" on the mark column
    // unfold and fold as a click does.
    void onKeyDown(int key, Qt::KeyboardModifiers modifiers);
    // Cells put back by undo, redo or a pasted row taken back: the grand total follows them.
    void onCellsRestored();
    // The batch cell of a batch- or shelf-life-managed item opens the batch dialog.
    void onCellButtonClick(int row, int col);
    void setNodeCommandsVisible(bool visible);

    ICInitCtl &m_ctl;
    SpreadGrid *m_grid;
    EntrySheet *m_sheet;
    NavTree *m_tree;
    QComboBox *m_stockBox;
    PageBar *m_pageBar;
    QVector<WarehouseEntry> m_stocks;
    std::unique_ptr<EntrySaver> m_saver;
    std::unique_ptr<EntryFinding> m_finding;
};
