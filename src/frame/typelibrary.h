#pragma once

#include "lumoicinitial_global.h"

#include "frame/automation/typelibraryregistry.h"

#include <QList>

// The published type library of the controls: class ids, interface ids, event interfaces and
// member ids that hosts bind to. One table; the library registers it when it is loaded.
inline constexpr const char *TypeLibraryName = "LumoICInitialCtl";

LUMOICINITIAL_EXPORT const QList<TypeLibraryClass> &icInitialTypeLibrary();
