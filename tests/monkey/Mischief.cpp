#include "Mischief.h"

#include "Names.h"
#include "Trail.h"

#include <QDir>
#include <QFile>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

constexpr int MostEntries = 40;

} // namespace

QByteArray Mischief::folder(Dice &dice)
{
    return dice.pick<QByteArray>({ "/root/zeltempfiles/ftp", "/root/zeltempfiles/ftp/sub",
                                   "/root/place", "/root/place/sub" });
}

void Mischief::play(Dice &dice)
{
    const QByteArray base = folder(dice);
    const QByteArray path = Names::path(dice, base);
    const char *const what =
            dice.pick({ "file", "file", "folder", "delete", "remove", "rename", "link", "circle",
                        "permissions", "vanish", "settings", "restore", "restore" });
    Trail::note(QByteArray(what) + ' ' + path);
    switch (what[0]) {
    case 'f':
        return what[1] == 'i' ? makeFile(path, path) : makeFolder(path, dice.once(4) ? 0 : 0700);
    case 'd':
        deletedEntries += ::unlink(path.constData()) == 0;
        return;
    case 'l':
        return makeLink(path, Names::path(dice, folder(dice)));
    case 'c':
        return makeLink(path, base);
    case 'p':
        ::chmod(base.constData(), dice.once(3) ? 0 : 0700);
        return;
    case 'v':
        return remove(base);
    case 's':
        return spoilSettings(dice);
    default:
        break;
    }
    if (what[2] == 'm')
        remove(path);
    else if (what[2] == 'n')
        ::rename(path.constData(), Names::path(dice, base).constData());
    else
        restore(base);
}

void Mischief::makeFile(const QByteArray &path, const QByteArray &contents)
{
    const int file = ::open(path.constData(), O_CREAT | O_EXCL | O_NOFOLLOW | O_WRONLY, 0600);
    if (file < 0)
        return;
    ++madeEntries;
    const bool written = ::write(file, contents.constData(), size_t(contents.size())) >= 0;
    if (::close(file) != 0 || !written)
        qWarning("cannot write %s", path.constData());
}

void Mischief::makeFolder(const QByteArray &path, unsigned mode)
{
    madeEntries += ::mkdir(path.constData(), mode) == 0;
}

void Mischief::makeLink(const QByteArray &path, const QByteArray &target)
{
    madeEntries += ::symlink(target.constData(), path.constData()) == 0;
}

void Mischief::remove(const QByteArray &path)
{
    // An empty path would be the working directory.
    if (path.startsWith("/root/") && QFile::exists(QFile::decodeName(path)))
        deletedEntries += QDir(QFile::decodeName(path)).removeRecursively();
}

// Bounded, or the listings would be slower with every event.
void Mischief::restore(const QByteArray &folder)
{
    const QString path = QFile::decodeName(folder);
    ::chmod(folder.constData(), 0700);
    if (QDir(path).count() > MostEntries)
        remove(folder);
    QDir().mkpath(path + QStringLiteral("/sub/deep"));
    makeFile(folder + "/a.txt", "a");
}

void Mischief::spoilSettings(Dice &dice)
{
    const QByteArray place = qgetenv("XDG_CONFIG_HOME") + "/MyOrganization";
    const QByteArray file = place + "/MyApplication.conf";
    ::chmod(place.constData(), 0700);
    remove(place);
    ::unlink(place.constData());
    switch (dice.roll(5)) {
    case 0:
        QDir().mkpath(QFile::decodeName(file));
        break;
    case 1:
        makeFile(place, "not a folder");
        break;
    case 2:
        makeFolder(place, 0700);
        makeFile(file, "\xff\xfe[[[\n=\n[General\nLastFilePath=@Variant(\\0\\0\\0\\x7f)\n");
        break;
    case 3:
        makeFolder(place, 0500);
        break;
    default:
        break;
    }
}
