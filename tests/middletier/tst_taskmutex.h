#pragma once

#include <QObject>

// "LumoNetControl.Mutex": who may run a task while another session holds it.
class TestTaskMutex : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase_data();
    void init();

    void registersAndCommits();
    void anotherLiveSessionHoldsItsTask_data();
    void anotherLiveSessionHoldsItsTask();
    void foreignHandleIsReleasedNotCommitted();
};
