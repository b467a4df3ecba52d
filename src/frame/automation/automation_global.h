#pragma once

#include <QtCore/qglobal.h>

#if defined(LUMOAUTOMATION_LIBRARY)
#define LUMOAUTOMATION_EXPORT Q_DECL_EXPORT
#else
#define LUMOAUTOMATION_EXPORT Q_DECL_IMPORT
#endif
