#ifndef MANAGEDFOLDER_H
#define MANAGEDFOLDER_H

#include "FtpFolder.h"

#include <QDir>

/// The folder that the manager shows, and one beside it that it must leave alone.
const QString root = FtpFolder::path();
const QString outside = QStringLiteral("/root/outside");

inline QString inRoot(const QString &path)
{
    return root + QLatin1Char('/') + path;
}

inline QStringList entries(const QString &path = root)
{
    return QDir(path).entryList(
            QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot, QDir::Name);
}

#endif // MANAGEDFOLDER_H
