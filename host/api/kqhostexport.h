#pragma once

#include <QtGlobal>

#if defined(KQHOST_BUILD)
#define KQHOST_EXPORT Q_DECL_EXPORT
#else
#define KQHOST_EXPORT Q_DECL_IMPORT
#endif
