#pragma once

#include <QObject>

// The services that need no account set: shared properties, the trace log, form fonts, and
// the registration of every ProgID.
class TestLocalServices : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanup();

    void registersEveryProgId();
    void sharedPropertiesBelongToTheProcess();
    void logWritesStartAndEnd_data();
    void logWritesStartAndEnd();
    void formFontReachesEveryWidget();
};
