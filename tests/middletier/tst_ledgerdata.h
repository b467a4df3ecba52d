#pragma once

#include <QObject>

// The account-level members of "LumoMICInitial.Data" (inventory sums per account,
// reconciliation, transfer to the ledger), its small look-ups (auxiliary properties, the filter
// dialog's field lists) and the log-in and look-up data of "LumoEBCGLView.GLData".
class TestLedgerData : public QObject
{
    Q_OBJECT

private slots:
    void cleanup();

    void accountSumsFollowTheBalances();
    void accountFiltersSelectOnlyWhatTheySay_data();
    void accountFiltersSelectOnlyWhatTheySay();
    void reconciliationPagesWithTotals_data();
    void reconciliationPagesWithTotals();
    void transferWritesTheLedgerBalance_data();
    void transferWritesTheLedgerBalance();
    void transferRefusesUnmatchedItems_data();
    void transferRefusesUnmatchedItems();
    void auxiliaryPropertiesAreCounted();
    void fieldListsOfferTheFilterFields_data();
    void fieldListsOfferTheFilterFields();
    void fieldListsFollowTheAccountSet();
    void loginFindsTheUser_data();
    void loginFindsTheUser();
    void lookupsFindWhatIsAsked_data();
    void lookupsFindWhatIsAsked();
};
