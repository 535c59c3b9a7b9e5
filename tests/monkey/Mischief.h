#ifndef MISCHIEF_H
#define MISCHIEF_H

#include "Dice.h"

#include <QByteArray>
#include <QString>

/// What other programs do to the file system while dialogs are open: they make, rename and delete
/// entries, take permissions away, and spoil the settings file. All of it below /root.
class Mischief
{
public:
    /// One of the few folders in which it happens.
    static QByteArray folder(Dice &dice);

    /// Does one thing.
    void play(Dice &dice);

    int made() const { return madeEntries; }
    int deleted() const { return deletedEntries; }

private:
    void makeFile(const QByteArray &path, const QByteArray &contents);
    void makeFolder(const QByteArray &path, unsigned mode);
    void makeLink(const QByteArray &path, const QByteArray &target);
    void remove(const QByteArray &path);
    void restore(const QByteArray &folder);
    void spoilSettings(Dice &dice);

    int madeEntries = 0;
    int deletedEntries = 0;
};

#endif // MISCHIEF_H
