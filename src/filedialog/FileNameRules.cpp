#include "filedialog/FileNameRules.h"

#include <QString>

QString FileNameRules::lastPart(const QString &path)
{
    return path.mid(path.lastIndexOf(QLatin1Char('/')) + 1);
}

QString FileNameRules::withoutTrailingSlash(const QString &path)
{
    return path.endsWith(QLatin1Char('/')) ? path.chopped(1) : path;
}

QString FileNameRules::withTrailingSlash(const QString &path)
{
    return path.endsWith(QLatin1Char('/')) ? path : path + QLatin1Char('/');
}

QString FileNameRules::withFilterSuffix(const QString &name, const QString &pattern)
{
    if (name.contains(QLatin1Char('.')))
        return name;
    QString suffix = pattern;
    return name + suffix.remove(QLatin1Char('*'));
}

QString FileNameRules::withForcedSuffix(const QString &typedName, const QString &suffix)
{
    const int dot = typedName.lastIndexOf(QLatin1Char('.'));
    if (dot < 0)
        return typedName + QLatin1Char('.') + suffix;
    if (dot == 0)
        return typedName;
    return typedName.left(dot + 1) + suffix;
}
