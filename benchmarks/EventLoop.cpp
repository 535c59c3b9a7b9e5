#include "EventLoop.h"

#include <QAbstractEventDispatcher>
#include <QCoreApplication>
#include <QHoverEvent>
#include <QWidget>

namespace {

constexpr int Patience = 600'000; // milliseconds; the slowest row under callgrind takes a tenth

} // namespace

void EventLoop::settle()
{
    QAbstractEventDispatcher *dispatcher = QAbstractEventDispatcher::instance();
    // Posted events alone do not count as handled with every dispatcher: only the second idle turn
    // is proof.
    for (int idle = 0; idle < 2;)
        idle = dispatcher->processEvents(QEventLoop::AllEvents) ? 0 : idle + 1;
}

void EventLoop::waitUntil(const std::function<bool()> &condition)
{
    QTimer guard;
    guard.setSingleShot(true);
    QObject::connect(&guard, &QTimer::timeout, &guard,
                     [] { qFatal("what a row waits for never came"); });
    guard.start(Patience);
    while (!condition())
        QCoreApplication::processEvents(QEventLoop::AllEvents | QEventLoop::WaitForMoreEvents);
}

void EventLoop::hover(QWidget *widget, const QPoint &position)
{
    QHoverEvent event(QEvent::HoverMove, position, position);
    QCoreApplication::sendEvent(widget, &event);
}

StallMeter::StallMeter()
{
    ticks.setTimerType(Qt::PreciseTimer);
    QObject::connect(&ticks, &QTimer::timeout, &ticks, [this] {
        longestStall = qMax(longestStall, sinceTick.nsecsElapsed());
        sinceTick.start();
    });
    ticks.start(1);
    sinceTick.start();
}

double StallMeter::longest() const
{
    return double(qMax(longestStall, sinceTick.nsecsElapsed())) / 1e6;
}
