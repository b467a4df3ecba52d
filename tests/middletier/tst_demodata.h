#pragma once

#include <QObject>

// The demo company and the generated volume: what the controls and the measurements rely on.
class TestDemoData : public QObject
{
    Q_OBJECT

private slots:
    void coversWhatTheControlsShow_data();
    void coversWhatTheControlsShow();
    void linesKeepTheBalanceRule_data();
    void linesKeepTheBalanceRule();
    void ledgerAgreesOnSomeAccountsOnly_data();
    void ledgerAgreesOnSomeAccountsOnly();
    void generatesVolume_data();
    void generatesVolume();
    void bulkInsertCrossesStatementBoundaries_data();
    void bulkInsertCrossesStatementBoundaries();
};
