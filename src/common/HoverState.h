#ifndef HOVERSTATE_H
#define HOVERSTATE_H

class QWidget;

namespace HoverState {

// Makes a clicked button look unhovered. A click that hides or covers the button's window leaves
// the attribute set, and the button would still look hovered when the window comes back.
void clear(QWidget *button);

} // namespace HoverState

#endif // HOVERSTATE_H
