#ifndef EVENTLOOP_H
#define EVENTLOOP_H

#include <QElapsedTimer>
#include <QPoint>
#include <QTimer>

#include <functional>

class QWidget;

namespace EventLoop {

/// Handles events until none is left.
void settle();

/// Handles events, waiting for more, until @p condition holds; ends the program after minutes.
void waitUntil(const std::function<bool()> &condition);

/// Sends @p widget the event of a pointer that moved to @p position over it. What it asks to have
/// painted waits for the event loop.
void hover(QWidget *widget, const QPoint &position);

} // namespace EventLoop

/// Watches, from its construction on, for how long the event loop does not turn.
class StallMeter
{
public:
    StallMeter();

    /// The longest stall up to now, in milliseconds.
    double longest() const;

private:
    QTimer ticks;
    QElapsedTimer sinceTick;
    qint64 longestStall = 0; // nanoseconds
};

#endif // EVENTLOOP_H
