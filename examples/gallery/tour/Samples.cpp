#include "Samples.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QImage>

Samples::Samples()
{
    make(path(), { QStringLiteral("notes.txt"), QStringLiteral("report.txt"),
                   QStringLiteral("table.csv"), QStringLiteral("projects/plan.txt"),
                   QStringLiteral("projects/2024/budget.txt"), QStringLiteral("archive/") });
    QImage image(64, 48, QImage::Format_RGB32);
    image.fill(Qt::darkCyan);
    image.save(QDir(path()).filePath(QStringLiteral("panel.png")));
}

bool Samples::has(const QString &name) const
{
    return QFileInfo::exists(QDir(path()).filePath(name));
}

QString Samples::privateFtpFolder()
{
    return qEnvironmentVariableIsSet("QTARNKIT_PRIVATE_ROOT")
                   ? QStringLiteral("/root/zeltempfiles/ftp")
                   : QString();
}

bool Samples::make(const QString &folder, const QStringList &names)
{
    const QDir dir(folder);
    for (const QString &name : names) {
        if (name.endsWith(QLatin1Char('/'))) {
            if (!dir.mkpath(name))
                return false;
            continue;
        }
        QFile file(dir.filePath(name));
        if (!dir.mkpath(QFileInfo(file).path()) || !file.open(QIODevice::WriteOnly)
            || file.write(name.toUtf8()) < 0)
            return false;
    }
    return true;
}
