#pragma once

#include <QObject>

// Parsing scripts and read statements without a database: the bound SQL and typed values of each
// statement shape, statement numbering, and the reasons a statement is refused.
class ScriptParserTest : public QObject
{
    Q_OBJECT

private slots:
    void boundSql_data();
    void boundSql();
    void statementsAreNumberedAndQuoted();
    void refusals_data();
    void refusals();
    void readStatementRefusals_data();
    void readStatementRefusals();
};
