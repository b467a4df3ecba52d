#pragma once

#include <QObject>

class TestBalanceCheck : public QObject
{
    Q_OBJECT

private slots:
    void group_data();
    void group();
    void emptyRowRefusedOnceOnFourthGroup_data();
    void emptyRowRefusedOnceOnFourthGroup();
};
