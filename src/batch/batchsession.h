#pragma once

#include "sheet/iteminfo.h"
#include "batch/batchservices.h"
#include "batch/batchsheet.h"
#include "batch/batchvalidation.h"
#include "frame/lumoicinitial_global.h"

#include <QColor>
#include <QObject>
#include <QPointer>

#include <optional>

class CellModel;
class Dictionary;

// What the opener of the batch dialog hands over before showing it.
struct BatchHandover
{
    QPointer<Dictionary> itemKey; // BMItemKey
    qint32 stockId = 0;           // CurrentBMStock
    qint32 spId = 0;              // CurrentBMSPlace
    qint32 itemId = 0;            // CurrentBMItem
    qint32 unitId = 0;            // CurrentUnitID
    qint32 secUnitId = 0;         // CurrentSecUnitID, 0 for none
    QString fieldCompose;         // FieldCompose
    QColor lockColor;             // LVSColor
    std::optional<bool> quantitiesOnly; // unset: as the account set keeps ("AuditChoice" 0)
    int stockType = 0;            // the warehouse's type, for the quantity/amount check
};

// The batch dialog without its widgets: opening, the rules of editing, the toolbar's commands,
// the checks, the save and the close prompt, all on the cells of the batch grid. Messages go
// through the prompter; where the cursor should go is announced by focusRequested.
class LUMOICINITIAL_EXPORT BatchSession : public QObject
{
    Q_OBJECT

public:
    explicit BatchSession(CellModel &cells, QObject *parent = nullptr);

    BatchHandover &handover() { return m_handover; }

    // Reads the item, queries the amount scale and the unit coefficients, lays out the grid and
    // fills it with the item's detail lines. A failing service is reported and the opening goes
    // on with what it has.
    void open();

    const ItemInfo &item() const { return m_item; }
    bool quantitiesOnly() const { return m_quantitiesOnly; }

    // Apportioning: offered for an average-priced batch item when the account set keeps amounts
    // and its option "ShareBal" is on.
    bool apportionOffered() const;
    void setApportioned(bool on);

    // After cells were put back without the edit path (undo, redo, a pasted line taken back):
    // the apportioned amounts and the totals follow the lines as they are now.
    void cellsRestored();

    // Any line added, edited or deleted since the opening or the last save.
    bool hasChanges() const;
    bool saved() const { return m_saved; }
    void setSaved(bool saved) { m_saved = saved; }
    // Why the line the balance test marked does not balance; empty for a line without a mark.
    QString balanceNote(int row) const { return m_sheet.balanceNote(row); }

    // The toolbar's commands.
    int addLine();
    bool deleteLine(int row);
    // Marks the unbalanced figures of every line; the number of lines that do not balance.
    int balanceTest();
    bool save();
    // Asks to save pending changes; false when the dialog must stay open.
    bool confirmClose();

signals:
    void focusRequested(int row, int col);
    void progressChanged(int value, int maximum);
    void apportionedChanged(bool apportioned);

private:
    // The script a save sends: the item's rows deleted, every line inserted again.
    QString saveScript() const;
    void onValidateEdit(int row, int col, const QVariant &value);
    void onAfterEdit(int row, int col);
    void convertUnits(int row, int col);
    void applyPlanPrice(int row, int col);
    void apportion();
    BatchRules rules() const;
    void warn(const QString &text) const;

    CellModel &m_cells;
    BatchSheet m_sheet;
    BatchHandover m_handover;
    ItemInfo m_item;
    bool m_quantitiesOnly = false;
    int m_amountScale = 2;
    BatchServices::UnitCoefficients m_coefficients;
    QDate m_startDate;
    bool m_apportioned = false;
    bool m_changed = false;
    bool m_saved = false;
    QList<qint32> m_deletedSerialLists;
};
