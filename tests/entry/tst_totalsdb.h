#pragma once

#include "frame/prompter.h"

#include <QObject>

// The grand-total row of the entry grid on a temporary demo account set: when it is shown, what
// it sums and how it looks.
class TestTotalsOnAccountSet : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase();
    void cleanupTestCase();
    void init();

    void onlyTheLastPageSumsThePlace_data();
    void onlyTheLastPageSumsThePlace();
    void onePageSumsTheGridWithEmptyCellsAsZero_data();
    void onePageSumsTheGridWithEmptyCellsAsZero();
    void sumCommandGoesToTheGrandTotal_data();
    void sumCommandGoesToTheGrandTotal();
    void filterSelectingNothingGivesZeros_data();
    void filterSelectingNothingGivesZeros();

private:
    ScriptedPrompter m_prompter;
};
