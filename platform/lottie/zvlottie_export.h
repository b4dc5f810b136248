#pragma once

#include <QtGlobal>

#if defined(ZVLOTTIE_LIBRARY)
#define ZVLOTTIE_EXPORT Q_DECL_EXPORT
#else
#define ZVLOTTIE_EXPORT Q_DECL_IMPORT
#endif
