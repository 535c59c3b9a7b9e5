#include "HostileNames.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

QStringList hostileNames()
{
    QStringList names = {
        QStringLiteral("two\nlines.txt"),
        QStringLiteral("\n<b>x.txt"),
        QStringLiteral("a\tb\rc.txt"),
        QStringLiteral("\u0001\u001b[31mred\u007f.txt"),
        QStringLiteral("<b>bold<i> &amp; & \"x\".txt"),
        QStringLiteral("<img src=\"%2Froot%2Fpipe\">.txt"),
        QStringLiteral("a&lt;b.txt"),
        QStringLiteral("a\u202Egpj.txt"),
        QStringLiteral("\u200F\u05D0\u05D1.txt"),
        QStringLiteral("a\u2028b\u2029c.txt"),
        QStringLiteral("\u200B\u2060.txt"),
        QStringLiteral("\U0001F600\U00020000.txt"),
        QStringLiteral("\u0301e\u0301.txt"),
        QString(251, QLatin1Char('x')) + QStringLiteral(".txt"),
        QString(85, QChar(0x6587)),
        QStringLiteral("-rf.txt"),
        QStringLiteral("~root.txt"),
        QStringLiteral(":image.txt"),
        QStringLiteral("%1%2%n%s %20.txt"),
        QStringLiteral("$(reboot);`x`|'\"&*?[a]!.txt"),
        QStringLiteral("a\\..\\b.txt"),
        QStringLiteral("file:x?y#z.txt"),
        QStringLiteral("   "),
        QStringLiteral("  a b  "),
        QStringLiteral("a..."),
        QStringLiteral("@Variant(a,b;c=d)\\x41.txt"),
    };
    names.sort();
    return names;
}

QByteArray nameThatIsNoText()
{
    return QByteArrayLiteral("bad\xff\xfe\xc3\x28.txt");
}

bool makeRawFile(const QByteArray &path, const QByteArray &contents)
{
    const int file = open(path.constData(), O_CREAT | O_EXCL | O_WRONLY, 0600);
    if (file < 0)
        return false;
    const bool written =
            write(file, contents.constData(), size_t(contents.size())) == contents.size();
    return close(file) == 0 && written;
}

bool makeRawFolder(const QByteArray &path)
{
    return mkdir(path.constData(), 0700) == 0;
}

bool makeRawFile(const QString &path)
{
    return makeRawFile(path.toUtf8(), path.toUtf8());
}

bool makeRawFolder(const QString &path)
{
    return makeRawFolder(path.toUtf8());
}
