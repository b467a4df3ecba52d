#pragma once

#include "frame/lumoicinitial_global.h"

#include <QDialog>
#include <QHash>

class BatchSession;
class Dictionary;
class QAction;
class QLabel;
class QProgressBar;
class QTabBar;
class QToolBar;
class SpreadGrid;

// The modal dialog in which the batch / shelf-life detail lines of one item row are entered,
// checked, apportioned and saved.
//
// What the opener sets before showing it (the entry control, from the batch cell of an item row):
//   BMItemKey         the item's keyed collection (ItemInfo::toItemKey): "ID", "ShortNum", "Num",
//                     "Name", "Model", "FBM", "FKF", "Track", "PlanPrice", "UnitID",
//                     "QtyDecimal", "PriceDecimal", "KFPeriod", "SecUnitID", "SecCoefficient",
//                     "AuxPropID". It is read when the dialog opens; keep it alive until then.
//   CurrentBMStock    FStockID of the item row
//   CurrentBMSPlace   FSPID of the item row
//   CurrentBMItem     FItemID of the item row
//   CurrentUnitID     FUnitID: the unit quantities are entered in
//   CurrentSecUnitID  the secondary unit, 0 for none (its quantity columns are hidden then)
//   FieldCompose      the item row's composed key as loaded (FFieldCompose), empty for none
//   LVSColor          the colour of locked lines as an RGB number (defaults to the "Lock" colour)
// and, when they differ from the account set's defaults:
//   quantitiesOnly    true when the entry grid hides its amount columns (default: "AuditChoice" 0)
//   stockType         the warehouse's type (502 keeps quantities only), for the quantity check
// Then ShowDialog() (or prepare() and exec()), and afterwards SavedBatMan: true when the dialog
// wrote the lines to the database, so that the opener refreshes its row. The dialog never touches
// the entry grid.
class LUMOICINITIAL_EXPORT frmBatchManager : public QDialog
{
    Q_OBJECT
    Q_PROPERTY(QObject *BMItemKey READ BMItemKey WRITE setBMItemKey)
    Q_PROPERTY(int CurrentBMStock READ CurrentBMStock WRITE setCurrentBMStock)
    Q_PROPERTY(int CurrentBMSPlace READ CurrentBMSPlace WRITE setCurrentBMSPlace)
    Q_PROPERTY(int CurrentBMItem READ CurrentBMItem WRITE setCurrentBMItem)
    Q_PROPERTY(int CurrentUnitID READ CurrentUnitID WRITE setCurrentUnitID)
    Q_PROPERTY(int CurrentSecUnitID READ CurrentSecUnitID WRITE setCurrentSecUnitID)
    Q_PROPERTY(QString FieldCompose READ FieldCompose WRITE setFieldCompose)
    Q_PROPERTY(int LVSColor READ LVSColor WRITE setLVSColor)
    Q_PROPERTY(bool SavedBatMan READ SavedBatMan WRITE setSavedBatMan)
    Q_PROPERTY(bool quantitiesOnly READ quantitiesOnly WRITE setQuantitiesOnly)
    Q_PROPERTY(int stockType READ stockType WRITE setStockType)

public:
    Q_INVOKABLE explicit frmBatchManager(QWidget *parent = nullptr);
    ~frmBatchManager() override;

    QObject *BMItemKey() const;
    void setBMItemKey(QObject *itemKey);
    int CurrentBMStock() const;
    void setCurrentBMStock(int stockId);
    int CurrentBMSPlace() const;
    void setCurrentBMSPlace(int spId);
    int CurrentBMItem() const;
    void setCurrentBMItem(int itemId);
    int CurrentUnitID() const;
    void setCurrentUnitID(int unitId);
    int CurrentSecUnitID() const;
    void setCurrentSecUnitID(int secUnitId);
    QString FieldCompose() const;
    void setFieldCompose(const QString &fieldCompose);
    int LVSColor() const;
    void setLVSColor(int rgb);
    bool SavedBatMan() const;
    void setSavedBatMan(bool saved);
    bool quantitiesOnly() const;
    void setQuantitiesOnly(bool quantitiesOnly);
    int stockType() const;
    void setStockType(int type);

    // Opens the item: lays out the grid and loads its detail lines from the data service.
    Q_INVOKABLE void prepare();
    // prepare() and the modal loop; the dialog's result code.
    Q_INVOKABLE int ShowDialog();
    // Presses a toolbar button by key ("AddNew", "ShareBal", "Balance", "Delete", "Save",
    // "Exit"); false for an unknown or disabled button.
    Q_INVOKABLE bool pressButton(const QString &key);

    SpreadGrid *grid() const { return m_grid; }
    BatchSession *session() const { return m_session; }
    QAction *button(const QString &key) const { return m_buttons.value(key); }

public slots:
    // Closing asks to save pending changes; the dialog stays open when that save fails.
    void reject() override;

private:
    void buildToolBar();
    void runButton(const QString &key);
    void closeAfterPrompt();
    void focusCell(int row, int col);
    void showProgress(int value, int maximum);
    void showBalanceNote(int row);

    SpreadGrid *m_grid = nullptr;
    BatchSession *m_session = nullptr;
    QToolBar *m_toolBar = nullptr;
    QTabBar *m_tabs = nullptr;
    QLabel *m_itemLabel = nullptr;
    QLabel *m_balanceNote = nullptr;
    QProgressBar *m_progress = nullptr;
    QHash<QString, QAction *> m_buttons;
};
