#ifndef TITLEDRAG_H
#define TITLEDRAG_H

class QEvent;
class QPoint;
class QWidget;

// The rule by which a title strip drags its window: a left press takes hold, moves with exactly the
// left button held carry the window along, any release lets go.
namespace TitleDrag {

enum class Bounds {
    None, // anywhere, off the screen too
    AvailableArea // inside the available area of the screen under the pointer
};

// Handles one event of a title strip, to be called from an event filter. pressed and offset (the
// pointer's screen position minus the window's frame corner at the press) are the caller's own.
// Returns whether the event is consumed.
bool handleEvent(QWidget *window, QEvent *event, bool &pressed, QPoint &offset, Bounds bounds);

} // namespace TitleDrag

#endif // TITLEDRAG_H
