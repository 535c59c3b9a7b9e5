#ifndef WIDGETSTATE_H
#define WIDGETSTATE_H

#include <QJsonObject>

class QWidget;

/// What can be seen of a window, with all positions on the screen, so that the driver never guesses
/// where something is.
namespace WidgetState {

/// A window with all its visible widgets, the rows of its views and the entries of its menu.
QJsonObject ofWindow(const QWidget *window);

} // namespace WidgetState

#endif // WIDGETSTATE_H
