// SPDX-License-Identifier: MIT
#ifndef STBCORE_STBCOREGLOBAL_H
#define STBCORE_STBCOREGLOBAL_H

#include <QtCore/qglobal.h>

#ifdef STBCORE_LIBRARY
#  define STBCORE_EXPORT Q_DECL_EXPORT
#else
#  define STBCORE_EXPORT Q_DECL_IMPORT
#endif

#endif // STBCORE_STBCOREGLOBAL_H
