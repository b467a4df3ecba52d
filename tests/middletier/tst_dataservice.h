#pragma once

#include <QObject>

// "LumoMICInitial.Data", "LumoConnection.AppConnection" and "LumoEBCGLView.GLData", called
// late-bound by their published names as the controls call them.
class TestDataService : public QObject
{
    Q_OBJECT

private slots:
    void cleanup();

    void stocksComeParentsFirst_data();
    void stocksComeParentsFirst();
    void typeListsAreParsedOrRefused_data();
    void typeListsAreParsedOrRefused();
    void systemParametersAreTyped_data();
    void systemParametersAreTyped();
    void measureUnitsCarryTheirGroups();
    void updateWritesAllOrNothing_data();
    void updateWritesAllOrNothing();
    void executeReadsOnlyWhatTheControlsSend_data();
    void executeReadsOnlyWhatTheControlsSend();
    void accessFollowsTheLoggedInUser_data();
    void accessFollowsTheLoggedInUser();
    void currencyCarriesItsScale();
};
