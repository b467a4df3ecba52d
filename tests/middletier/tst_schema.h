#pragma once

#include <QObject>

// The schema declaration, its DDL on both backends, migrations and account-set locations.
class TestSchema : public QObject
{
    Q_OBJECT

private slots:
    void declarationIsConsistent();
    void holdsEveryColumnTheScriptsWrite();
    void migratesFromVersionOne_data();
    void migratesFromVersionOne();
    void dialectStatementsRunOnTheBackend_data();
    void dialectStatementsRunOnTheBackend();
    void refusesWhatItCannotOpen();
    void parsesLocations_data();
    void parsesLocations();
};
