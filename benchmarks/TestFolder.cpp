#include "TestFolder.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <array>
#include <memory>

namespace {

constexpr std::array<const char *, 10> Suffixes = { "txt", "png", "jpg", "pdf", "csv",
                                                    "log", "xml", "dat", "zip", "mp3" };
constexpr int FolderDistance = 10; // from one folder among the entries to the next
constexpr int Scatter = 7919; // prime to all sizes: entries are made in no sorted order

void makeFile(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write("content\n") < 0)
        qFatal("cannot write %s", qPrintable(path));
}

QString fileName(int number)
{
    return QStringLiteral("file %1.%2")
            .arg(number, 6, 10, QLatin1Char('0'))
            .arg(QLatin1String(Suffixes[size_t(number) % Suffixes.size()]));
}

void fill(const QDir &folder, int size, TestFolder::Kind kind)
{
    int files = size;
    if (kind == TestFolder::WithSmallFolder) {
        --files;
        folder.mkdir(TestFolder::smallFolder());
        fill(folder.filePath(TestFolder::smallFolder()), TestFolder::SmallSize,
             TestFolder::FilesOnly);
    }
    for (int i = 0; i < files; ++i) {
        const int number = int(qint64(i) * Scatter % files);
        if (kind == TestFolder::WithFolders && number % FolderDistance == 0)
            folder.mkdir(QStringLiteral("folder %1").arg(number, 6, 10, QLatin1Char('0')));
        else
            makeFile(folder.filePath(fileName(number)));
    }
}

// Gone with the application object, so also when a row ends the program in the middle.
QString root()
{
    static std::unique_ptr<QTemporaryDir> folder;
    if (!folder) {
        folder = std::make_unique<QTemporaryDir>();
        if (!folder->isValid())
            qFatal("cannot make a temporary folder");
        qAddPostRoutine([] { folder.reset(); });
    }
    return folder->path();
}

QString extraFile()
{
    return QStringLiteral("/one more file.txt");
}

} // namespace

QString TestFolder::path(int size, Kind kind)
{
    const QString path = QStringLiteral("%1/%2-%3").arg(root()).arg(size).arg(int(kind));
    if (QDir().mkdir(path))
        fill(path, size, kind);
    return path;
}

QString TestFolder::smallFolder()
{
    return QStringLiteral("a small folder");
}

QString TestFolder::onePattern()
{
    return QStringLiteral("Text (*.txt)");
}

QString TestFolder::fivePatterns()
{
    return QStringLiteral("Documents (*.txt *.png *.jpg *.pdf *.csv)");
}

QString TestFolder::allPatterns()
{
    return QStringLiteral("All (*)");
}

int TestFolder::acceptedByOne(int size)
{
    return size / int(Suffixes.size());
}

int TestFolder::acceptedByFive(int size)
{
    return size / 2;
}

void TestFolder::addFile(const QString &folder)
{
    makeFile(folder + extraFile());
}

void TestFolder::removeFile(const QString &folder)
{
    QFile::remove(folder + extraFile());
}
