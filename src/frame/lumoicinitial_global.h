#pragma once

#include <QtCore/qglobal.h>

#if defined(LUMOICINITIAL_LIBRARY)
#define LUMOICINITIAL_EXPORT Q_DECL_EXPORT
#else
#define LUMOICINITIAL_EXPORT Q_DECL_IMPORT
#endif
