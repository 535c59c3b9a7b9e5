#ifndef HOSTILENAMES_H
#define HOSTILENAMES_H

#include <QByteArray>
#include <QString>
#include <QStringList>

/// Names that a file may have and that a program easily gets wrong, sorted. None is hidden, and all
/// but a few have the suffix "txt".
QStringList hostileNames();

/// Bytes that are no text in UTF-8, so that QString cannot hold them.
QByteArray nameThatIsNoText();

/// Make an entry whose path may be any bytes. Return false when that failed.
bool makeRawFile(const QByteArray &path, const QByteArray &contents = QByteArray());
bool makeRawFolder(const QByteArray &path);
bool makeRawFile(const QString &path);
bool makeRawFolder(const QString &path);

#endif // HOSTILENAMES_H
