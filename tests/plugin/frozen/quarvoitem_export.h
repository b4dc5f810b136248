#pragma once

#include <QtGlobal>

#if defined(QUARVOITEM_LIBRARY)
#define QUARVOITEM_EXPORT Q_DECL_EXPORT
#else
#define QUARVOITEM_EXPORT Q_DECL_IMPORT
#endif
