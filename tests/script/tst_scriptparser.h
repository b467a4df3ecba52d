#pragma once

#include <QObject>

// Parsing scripts without a database: the bound SQL and typed values of each statement shape,
// statement numbering, and the reasons a statement is refused.
class ScriptParserTest : public QObject
{
    Q_OBJECT

private slots:
    void boundSql_data();
    void boundSql();
    void statementsAreNumberedAndQuoted();
    void refusals_data();
    void refusals();
    void blankScriptHasNoStatements();
};
