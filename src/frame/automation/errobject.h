#pragma once

#include "automation_global.h"
#include "lumoerror.h"

#include <QString>

// The library-wide current error: what a handler caught last. The error box reads its description
// and source, and logging saves and restores it so it never hides the error a caller is handling.
struct LUMOAUTOMATION_EXPORT ErrState
{
    int number = 0;
    QString description;
    QString source;
    int helpContext = 0;
    QString helpFile;
};

class LUMOAUTOMATION_EXPORT ErrObject
{
public:
    static ErrState &current();
    static void set(const LumoError &error);
    static void set(const ErrState &state);
    static void clear();
};
