#pragma once

#include <QGuiApplication>

// The wait cursor for the lifetime of a scope: long work on the user-interface thread (a page of
// a large place, a save) shows that the suite is busy.
class WaitCursor
{
public:
    WaitCursor() { QGuiApplication::setOverrideCursor(Qt::WaitCursor); }
    ~WaitCursor() { QGuiApplication::restoreOverrideCursor(); }
    WaitCursor(const WaitCursor &) = delete;
    WaitCursor &operator=(const WaitCursor &) = delete;
};
