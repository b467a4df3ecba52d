#pragma once

#include <QObject>

// The read statements the controls send through Execute: only their two shapes pass, as bound
// SQL for the backend.
class ReadStatementTest : public QObject
{
    Q_OBJECT

private slots:
    void accepted_data();
    void accepted();
    void refused_data();
    void refused();
};
