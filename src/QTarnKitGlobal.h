#ifndef QTARNKITGLOBAL_H
#define QTARNKITGLOBAL_H

#include <QtCore/qglobal.h>

#if defined(QTARNKIT_LIBRARY)
#define QTARNKIT_EXPORT Q_DECL_EXPORT
#else
#define QTARNKIT_EXPORT Q_DECL_IMPORT
#endif

#endif // QTARNKITGLOBAL_H
