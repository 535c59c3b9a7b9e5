#ifndef PATHS_H
#define PATHS_H

#include <QString>

// The device's fixed places and the one persisted setting, each with its only spelling here.
namespace Paths {

// Root of the file manager.
inline QString ftpFolder()
{
    return QStringLiteral("/root/zeltempfiles/ftp");
}

// The same folder as the file dialog compares it with start folders and typed paths.
inline QString ftpFolderWithSlash()
{
    return ftpFolder() + QLatin1Char('/');
}

// Whether a folder lies strictly above another, by their paths; the empty path lies nowhere.
inline bool isAbove(const QString &path, const QString &below)
{
    const QString prefix = path.endsWith(QLatin1Char('/')) ? path : path + QLatin1Char('/');
    return !path.isEmpty() && below != path && below.startsWith(prefix);
}

inline QString settingsOrganization()
{
    return QStringLiteral("MyOrganization");
}
inline QString settingsApplication()
{
    return QStringLiteral("MyApplication");
}

// Key of the remembered folder; the file modes append the text of their first filter.
inline QString lastFolderKey()
{
    return QStringLiteral("LastFilePath");
}

} // namespace Paths

#endif // PATHS_H
