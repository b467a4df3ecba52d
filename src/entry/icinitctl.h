#pragma once

#include "frame/initcontrol.h"
#include "frame/lumoicinitial_global.h"

#include "entry/accounttable.h"
#include "entry/entrycommands.h"
#include "sheet/warehousetable.h"

#include <QVector>

#include <memory>

class EntrySaver;
class frmBatchManager;
class EntrySheet;
class NavTree;
class PageBar;
class QComboBox;
class QLabel;
class Recordset;
class SpreadGrid;

// The entry control: the warehouse tree on the left, the entry grid on the right, for entering
// and reconciling the opening balances of inventory.
class LUMOICINITIAL_EXPORT ICInitCtl : public InitControl
{
    Q_OBJECT

public:
    enum class Mode { Entry, Check };

    Q_INVOKABLE explicit ICInitCtl(QWidget *parent = nullptr);
    ~ICInitCtl() override;

    // Shows the control in its host window; false without a host window (unless testing) or when
    // a step failed.
    Q_INVOKABLE bool Show(QObject *ParentWnd, bool blnIstest = false);

    Mode mode() const { return m_mode; }
    const QVector<WarehouseEntry> &warehouseTable() const { return m_stocks; }
    // The table index of the node whose rows are shown; -1 before the first click.
    int currentNode() const { return m_currentNode; }
    qint16 amountScale() const { return m_amountScale; }
    Recordset *measureUnits() const { return m_units.get(); }
    NavTree *tree() const { return m_tree; }
    SpreadGrid *grid() const { return m_grid; }

    // Builds the warehouse tree from the data service.
    void LoadingStocks();
    // Builds the flat account tree of reconciliation mode.
    void LoadingAccounts();
    const QVector<AccountEntry> &accountTable() const { return m_accounts; }
    // Switches between entry ("录入") and reconciliation ("对账"), rebuilding the tree.
    Q_INVOKABLE void switchMode(bool reconciliation);
    // A click on a node of the tree, by key.
    void tvICInit_NodeClick(const QString &key);
    EntrySheet *sheet() const { return m_sheet; }

    // The page commands "FIRSTPAGE", "PREPAGE", "NEXTPAGE", "LASTPAGE" and "SEARCHPAGE" (the page
    // typed in the page box).
    Q_INVOKABLE void PageCommand(const QString &key);
    Q_INVOKABLE QString pageLabel() const;

    // The Save command: checks the changed rows and writes them in one call; false when a row was
    // refused or the write failed.
    Q_INVOKABLE bool SaveData();
    // Asks "数据已经改变，是否需要保存？" when there are unsaved changes and saves on Yes; false
    // when the save the user asked for did not succeed, so the caller stays where it is.
    bool confirmLeave();
    // Appends a new row and puts the cursor on its code cell.
    Q_INVOKABLE int AddNewRow();
    // Deletes the item row under the cursor (not an unfolded one).
    Q_INVOKABLE bool DeleteCurrentRow();
    EntrySaver *saver() const { return m_saver.get(); }
    // The batch dialog for the item row, its members set from the row and the item; null for a
    // row without batch or shelf-life management. The caller prepares and shows it.
    std::unique_ptr<frmBatchManager> batchDialogFor(int row);
    // The Sum command: goes to the last page, sums again and puts the cursor on the "总计" row;
    // false where no totals row can be shown.
    Q_INVOKABLE bool showTotals();

protected:
    void runCommand(const QString &key) override;
    void beforeUnload() override;
    void applyDefaultStockSetting() override;
    int stockListIndex() const override;

private:
    void buildLayout();
    void setMode(Mode mode);
    void enableCommands();
    void setNodeCommandsVisible(bool visible);
    // Whether the account set keeps amounts ("AuditChoice"), so that there is a reconciliation.
    bool reconciliationExists() const;
    void fillStockList();
    void openDefaultStock();
    // Loads page `pageIndex` of the current node into the grid.
    void loadRows(int pageIndex);
    void showPages();
    void onAfterEdit(int row, int col);
    void onCellClicked(int row, int col);
    // The batch cell of a batch- or shelf-life-managed item opens the batch dialog.
    void onCellButtonClick(int row, int col);
    void markRowChanged(int row);
    void setSaveEnabled(bool enabled);
    // Find needs loaded rows, and its procedure.
    void setFindEnabled();
    QString currentNodeKey() const;
    bool checkEditedGroup(int row, int col, const QVariant &value);

    Mode m_mode = Mode::Entry;
    int m_currentNode = -1;
    qint16 m_amountScale = 2;
    QVector<WarehouseEntry> m_stocks;
    QVector<AccountEntry> m_accounts;
    std::unique_ptr<Recordset> m_accountRecords;
    std::unique_ptr<Recordset> m_units;
    QLabel *m_title = nullptr;
    QLabel *m_selectorLabel = nullptr;
    QComboBox *m_modeBox = nullptr;
    QComboBox *m_stockBox = nullptr;
    NavTree *m_tree = nullptr;
    SpreadGrid *m_grid = nullptr;
    EntrySheet *m_sheet = nullptr;
    PageBar *m_pageBar = nullptr;
    QWidget *m_treePane = nullptr;
    std::unique_ptr<EntrySaver> m_saver;
};
