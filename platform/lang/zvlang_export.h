#pragma once

#include <QtGlobal>

#if defined(ZVLANG_LIBRARY)
#define ZVLANG_EXPORT Q_DECL_EXPORT
#else
#define ZVLANG_EXPORT Q_DECL_IMPORT
#endif
