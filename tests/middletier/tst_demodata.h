#pragma once

#include <QObject>

// The demo company and the generated volume: what the controls and the measurements rely on.
class TestDemoData : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase_data();
    void init();

    void rowsAgreeWithEachOther();
    void linesKeepTheBalanceRule();
    void generatesVolume();
};
