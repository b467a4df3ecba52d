#include "qllogmsglog.h"

#include "tracelog.h"

QLLogMsgLog::QLLogMsgLog(QObject *parent)
    : QObject(parent)
{
}

bool QLLogMsgLog::IsEnabled()
{
    return TraceLog::instance().enabled();
}

int QLLogMsgLog::LogStart(const QString &text)
{
    return TraceLog::instance().start(text);
}

void QLLogMsgLog::LogEnd(int handle, int value)
{
    TraceLog::instance().end(handle, value);
}
