#pragma once

#include <QObject>

class TestChangeBook : public QObject
{
    Q_OBJECT

private slots:
    void changedRowsKeyedByComposedKey();
    void deletedRowsKeptOnce();
    void unitChangeRemembersLoadedUnit();
    void askToSave_data();
    void askToSave();
};
