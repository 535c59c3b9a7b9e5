#ifndef NAMES_H
#define NAMES_H

#include "Dice.h"

#include <QByteArray>
#include <QString>

/// File names and texts that a well-meaning programmer does not think of.
namespace Names {

/// A name as the file system has it: any bytes but "/" and 0.
QByteArray file(Dice &dice);
/// A path below @p folder, existing or not.
QByteArray path(Dice &dice, const QByteArray &folder);
QString text(Dice &dice);

} // namespace Names

#endif // NAMES_H
