#include "SmallDisk.h"

#include <QDir>
#include <QFile>

#include <cerrno>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

QString SmallDisk::path()
{
    return QStringLiteral("/root/small");
}

bool SmallDisk::reset()
{
    using Status = struct stat;
    Status disk = {};
    Status root = {};
    if (!qEnvironmentVariableIsSet("QTARNKIT_PRIVATE_ROOT") || stat(qPrintable(path()), &disk) != 0
        || stat("/root", &root) != 0 || disk.st_dev == root.st_dev)
        return false;
    QDir dir(path());
    const QStringList entries =
            dir.entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);
    for (const QString &entry : entries) {
        if (!QFile::remove(dir.filePath(entry)) && !QDir(dir.filePath(entry)).removeRecursively())
            return false;
    }
    return true;
}

bool SmallDisk::fill()
{
    const int file = open(qPrintable(path() + QStringLiteral("/filling")),
                          O_CREAT | O_WRONLY | O_APPEND, 0600);
    if (file < 0)
        return false;
    const QByteArray block(4096, 'x');
    while (write(file, block.constData(), size_t(block.size())) > 0) {
    }
    const bool full = errno == ENOSPC;
    close(file);
    return full;
}

bool SmallDisk::fillWithEntries()
{
    for (int i = 0; mkdir(qPrintable(path() + QStringLiteral("/filling%1").arg(i)), 0700) == 0;
         ++i) {
    }
    return errno == ENOSPC;
}
