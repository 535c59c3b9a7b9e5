#include "Names.h"

#include <QList>

QByteArray Names::file(Dice &dice)
{
    static const QList<QByteArray> names = {
        "a.txt",
        "b.png",
        "report",
        "sub",
        "deep",
        "two\nlines.txt",
        "<b>bold</b>&lt;.txt",
        "a\xe2\x80\xae.txt.exe",
        "bad\xff\xfe.txt",
        "-rf",
        ".hidden",
        "...",
        "   ",
        " .txt",
        "%1%2%s.txt",
        "\xe5\x9b\xbe\xe7\x89\x87",
        "a;b|c$(d)`e`.txt",
        "tab\tand\x01.txt",
    };
    const int number = dice.roll(names.size() + 2);
    if (number == names.size())
        return QByteArray(255, 'x');
    if (number > names.size())
        return "n" + QByteArray::number(dice.roll(8));
    return names.at(number);
}

QByteArray Names::path(Dice &dice, const QByteArray &folder)
{
    QByteArray path = folder;
    for (int depth = dice.once(3) ? dice.roll(3) : 0; depth >= 0; --depth)
        path += '/' + file(dice);
    return path;
}

QString Names::text(Dice &dice)
{
    switch (dice.roll(6)) {
    case 0:
        return QString();
    case 1:
        return QString(dice.roll(3000), QLatin1Char('W'));
    case 2:
        return QStringLiteral("Images (*.png *.jpg);;Text (*.txt);;All (*)");
    case 3:
        return QStringLiteral("Abc1");
    default:
        return QString::fromUtf8(file(dice));
    }
}
