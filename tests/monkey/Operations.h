#ifndef OPERATIONS_H
#define OPERATIONS_H

#include "Dice.h"

class QWidget;

/// The library's operations on its windows, called as a careless host does: in any order, with any
/// arguments.
namespace Operations {

void fillBox(Dice &dice, QWidget *box);
/// Calls an operation that the widget's class has.
void call(Dice &dice, QWidget *widget);

} // namespace Operations

#endif // OPERATIONS_H
