#pragma once

#include <QObject>

// The item rows of "LumoMICInitial.Data" on a warehouse of known balances: paging, the totals
// of the whole place, filters and sorts (and texts that try to be more than a filter), the item
// look-up by code, the rows an item already has, batch lines and the export.
class TestInitialData : public QObject
{
    Q_OBJECT

private slots:
    void filtersSortsAndPagesSelectOnlyWhatTheySay_data();
    void filtersSortsAndPagesSelectOnlyWhatTheySay();
    void itemDetailFindsByCode_data();
    void itemDetailFindsByCode();
    void initDataListsTheItemRows_data();
    void initDataListsTheItemRows();
    void batchLinesComeInTheAskedUnit();
    void exportListsEveryRowOfThePlace_data();
    void exportListsEveryRowOfThePlace();
    void placeTotalsFollowEveryWrite_data();
    void placeTotalsFollowEveryWrite();
};
