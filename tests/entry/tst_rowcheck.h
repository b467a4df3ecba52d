#pragma once

#include <QObject>

class TestRowCheck : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void refusalOrderAndCursor_data();
    void refusalOrderAndCursor();
    void refusedGroupMovesToItsQuantity_data();
    void refusedGroupMovesToItsQuantity();
    void settingsDecideGroupRules();
    void gridRowReadsTheEntryColumns();
};
