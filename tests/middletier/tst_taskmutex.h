#pragma once

#include <QObject>

// "LumoNetControl.Mutex": who may run a task while another session holds it.
class TestTaskMutex : public QObject
{
    Q_OBJECT

private slots:
    void registersAndCommits_data();
    void registersAndCommits();
    void refusesLiveTaskOfAnotherSession_data();
    void refusesLiveTaskOfAnotherSession();
    void clearsTasksOfEndedProcesses_data();
    void clearsTasksOfEndedProcesses();
    void commitsOnlyOwnHandles();
    void releaseFreesTheTask();
};
