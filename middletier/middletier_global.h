#pragma once

#include <QtCore/qglobal.h>

#if defined(LUMOMIDDLETIER_LIBRARY)
#define LUMOMIDDLETIER_EXPORT Q_DECL_EXPORT
#else
#define LUMOMIDDLETIER_EXPORT Q_DECL_IMPORT
#endif
