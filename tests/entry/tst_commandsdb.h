#pragma once

#include "hostframe.h"
#include "scratchaccountset.h"

#include "frame/prompter.h"

#include <QObject>

// The entry control's commands on a temporary demo account set: every key of the command table
// through the menu, the control's toolbar and the host's toolbar; enabling by mode and by the
// state of initialisation; the view settings; the keyboard.
class TestCommandsOnAccountSet : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase();
    void cleanupTestCase();
    void init();

    void menusAreGroupedAsPublished_data();
    void menusAreGroupedAsPublished();
    void everyKeyReachesItsProcedure_data();
    void everyKeyReachesItsProcedure();
    void toggleClickedTwiceKeepsTheSavedSetting_data();
    void toggleClickedTwiceKeepsTheSavedSetting();
    void viewSettingsSurviveANewShow();
    void enablingFollowsModeAndInitialisation_data();
    void enablingFollowsModeAndInitialisation();
    void reconciliationCommandsNeedAmounts_data();
    void reconciliationCommandsNeedAmounts();
    void keysRunTheCommandOfTheirAccelerator();

private:
    ScriptedPrompter m_prompter;
    // Shared by the key rows: the account set, and the control for the keys that do nothing.
    std::unique_ptr<ScratchAccountSet> m_keysSet;
    std::unique_ptr<HostFrame> m_idleHost;
};
