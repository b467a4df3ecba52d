#pragma once

#include "testdatabase.h"

#include <QObject>

#include <memory>

// The script executor against a real database: what each script of the controls writes, and
// that a refused or failing script leaves the database as it was. Every case runs on SQLite and,
// when LUMO_TEST_PG names a server, on PostgreSQL.
class ScriptExecutorTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase_data();
    void init();
    void cleanup();

    void writesWhatTheScriptSays_data();
    void writesWhatTheScriptSays();
    void failedScriptWritesNothing_data();
    void failedScriptWritesNothing();
    void sameShapeIsPreparedOnce();

private:
    QStringList snapshot() const;

    std::unique_ptr<TestDatabase> m_db;
};
