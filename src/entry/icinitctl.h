#pragma once

#include "frame/initcontrol.h"
#include "frame/lumoicinitial_global.h"

#include "entry/accounttable.h"

#include "dialogs/ffsconditions.h"

#include "sheet/warehousetable.h"

#include <QVector>

#include <memory>

class CheckMode;
class ControlMode;
class EntryMode;
class EntrySaver;
class EntrySheet;
class frmBatchManager;
class frmColorManager;
class frmFindFilterSort;
class NavTree;
class PageBar;
class QComboBox;
class QLabel;
class SpreadGrid;

// The entry control: the warehouse tree on the left, the entry grid on the right, for entering
// and reconciling the opening balances of inventory. It lays out the widgets and routes commands;
// what entry and reconciliation do lives in their mode classes.
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

    Mode mode() const;
    bool isEntryMode() const { return mode() == Mode::Entry; }
    const QVector<WarehouseEntry> &warehouseTable() const;
    const QVector<AccountEntry> &accountTable() const;
    // The table index of the node whose rows are shown; -1 before the first click.
    int currentNode() const { return m_currentNode; }
    void setCurrentNode(int index) { m_currentNode = index; }
    qint16 amountScale() const;
    NavTree *tree() const { return m_tree; }
    SpreadGrid *grid() const { return m_grid; }
    EntrySheet *sheet() const { return m_sheet; }
    QComboBox *stockBox() const { return m_stockBox; }
    PageBar *pageBar() const { return m_pageBar; }
    EntrySaver *saver() const;

    // Builds the warehouse tree from the data service.
    void LoadingStocks();
    // Builds the flat account tree of reconciliation mode.
    void LoadingAccounts();
    // Switches between entry ("录入") and reconciliation ("对账"), rebuilding the tree.
    Q_INVOKABLE void switchMode(bool reconciliation);
    // A click on a node of the tree, by key.
    void tvICInit_NodeClick(const QString &key);

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
    bool confirmClose() override;
    // Appends a new row and puts the cursor on its code cell.
    Q_INVOKABLE int AddNewRow();
    // Deletes the item row under the cursor (not an unfolded one).
    Q_INVOKABLE bool DeleteCurrentRow();
    // The batch dialog for the item row, its members set from the row and the item; null for a
    // row without batch or shelf-life management. The caller prepares and shows it.
    std::unique_ptr<frmBatchManager> batchDialogFor(int row);
    // The Sum command: goes to the last page, sums again and puts the cursor on the "总计" row;
    // false where no totals row can be shown.
    Q_INVOKABLE bool showTotals();

    // The find, filter or sort dialog over the grid's item rows, its members set and its events
    // connected to frmFFS_Find, frmFFS_Filter and frmFFS_Sort. The caller shows it.
    std::unique_ptr<frmFindFilterSort> findFilterSortDialog(FfsAction action);
    // F3 and Shift+F3: the cursor to the next or previous row the last find matched, on other
    // pages too; false when there is none.
    Q_INVOKABLE bool findNext(bool backwards = false);
    // The colour dialog; its OK repaints the grids at once.
    std::unique_ptr<frmColorManager> colorDialog();

    // Commands follow the mode, whether initialisation is open and whether rows are loaded.
    void enableCommands();
    // Find needs loaded rows, and its procedure.
    void setFindEnabled();
    // Whether the account set keeps amounts ("AuditChoice"), so that there is a reconciliation.
    bool reconciliationExists() const;

protected:
    void runCommand(const QString &key) override;
    void beforeUnload() override;
    void applyDefaultStockSetting() override;
    int stockListIndex() const override;
    void prepareShow() override;
    void showData(bool blnIstest) override;

private:
    void buildLayout();
    void setMode(ControlMode *mode);
    QString currentNodeKey() const;

    int m_currentNode = -1;
    QLabel *m_title = nullptr;
    QLabel *m_selectorLabel = nullptr;
    QComboBox *m_modeBox = nullptr;
    QComboBox *m_stockBox = nullptr;
    NavTree *m_tree = nullptr;
    SpreadGrid *m_grid = nullptr;
    EntrySheet *m_sheet = nullptr;
    PageBar *m_pageBar = nullptr;
    QWidget *m_treePane = nullptr;
    std::unique_ptr<EntryMode> m_entry;
    std::unique_ptr<CheckMode> m_check;
    ControlMode *m_mode = nullptr;
};
