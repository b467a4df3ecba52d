#pragma once

#include <QObject>

// The batch dialog's rules without a widget: apportioning, the line balance, the checks, the
// save script and the member handover.
class TestBatchRules : public QObject
{
    Q_OBJECT
private slots:
    void apportion_data();
    void apportion();
    void apportionFloatingRemainderTakesNoResidue();

    void lineBalance_data();
    void lineBalance();

    void typedBatch_data();
    void typedBatch();
    void saveCheck_data();
    void saveCheck();
    void checkGroupJudgesOneGroup();

    void scriptForOneLine();
    void scriptWithoutLinesOnlyDeletes();

    void itemFromKey();
    void modeCaption_data();
    void modeCaption();
};
