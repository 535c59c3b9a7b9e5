#include "FtpFolder.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

QString FtpFolder::path()
{
    return QStringLiteral("/root/zeltempfiles/ftp");
}

bool FtpFolder::isPrivate()
{
    return qEnvironmentVariableIsSet("QTARNKIT_PRIVATE_ROOT");
}

bool FtpFolder::reset(const QStringList &entries)
{
    return isPrivate() && QDir(path()).removeRecursively() && QDir().mkpath(path())
           && makeEntries(path(), entries);
}

bool makeEntries(const QString &folder, const QStringList &entries)
{
    const QDir dir(folder);
    for (const QString &entry : entries) {
        if (entry.endsWith(QLatin1Char('/'))) {
            if (!dir.mkpath(entry))
                return false;
            continue;
        }
        QFile file(dir.filePath(entry));
        if (!dir.mkpath(QFileInfo(file).path()) || !file.open(QIODevice::WriteOnly)
            || file.write(entry.toUtf8()) < 0)
            return false;
    }
    return true;
}
