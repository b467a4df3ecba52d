#pragma once

#include "frame/prompter.h"

#include "frame/automation/dictionary.h"

#include <QObject>

#include <memory>

class frmBatchManager;

// The batch dialog end to end: handed over, opened, typed into and saved like a person does,
// against fake services that record what would reach the database.
class TestBatchDialog : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase();
    void init();
    void cleanup();

    void opensWithLinesAndTotals();
    void lockedLineStaysReadOnly();
    void hiddenColumns_data();
    void hiddenColumns();
    void emptyItemNeedsAddNew();
    void apportionedQuantityOfANewLineIsAccepted();
    void quantityEditsFillDependentCells();
    void refusedGroupKeepsTheFigure();
    void saveScriptReachesTheService();
    void failedSaveKeepsTheChanges();
    void failedLoadIsReported();
    void showDialogRunsModally();

private:
    // A dialog opened for item 3057 in warehouse 12, stock place 3, with the records queued in
    // the fake data service.
    std::unique_ptr<frmBatchManager> openDialog(bool batch, bool shelfLife, int track = 78);

    ScriptedPrompter m_prompter;
    std::unique_ptr<Dictionary> m_itemKey;
};
