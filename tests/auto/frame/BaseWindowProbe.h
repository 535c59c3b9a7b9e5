#ifndef BASEWINDOWPROBE_H
#define BASEWINDOWPROBE_H

#include <QZelBaseWindows.h>

#include <QApplication>
#include <QHoverEvent>
#include <QMouseEvent>

/// A base window whose state can be read, with events made by hand. A hand-made event has an exact
/// place and brings no other event with it.
class BaseWindowProbe : public QZelBaseWindows
{
public:
    using QZelBaseWindows::areaRects;
    using QZelBaseWindows::isPressed;
    using QZelBaseWindows::moveEnable;
    using QZelBaseWindows::nativeEvent;
    using QZelBaseWindows::padding;
    using QZelBaseWindows::pressedArea;
    using QZelBaseWindows::pressPoint;
    using QZelBaseWindows::pressRect;
    using QZelBaseWindows::QZelBaseWindows;
    using QZelBaseWindows::resizeEnable;
    using QZelBaseWindows::showEvent;
    using QZelBaseWindows::titleBar;

    void press(const QPointF &position, Qt::MouseButton button = Qt::LeftButton)
    {
        QMouseEvent event(QEvent::MouseButtonPress, position, position, position + pos(), button,
                          button, Qt::NoModifier);
        QApplication::sendEvent(this, &event);
    }

    void hover(const QPointF &position)
    {
        QHoverEvent event(QEvent::HoverMove, position, position);
        QApplication::sendEvent(this, &event);
    }

    void release(const QPointF &position = {}, Qt::MouseButton button = Qt::LeftButton)
    {
        QMouseEvent event(QEvent::MouseButtonRelease, position, position, position + pos(), button,
                          Qt::NoButton, Qt::NoModifier);
        QApplication::sendEvent(this, &event);
    }

    /// Hovers at a place on the screen, wherever the window is by now.
    void hoverOnScreen(const QPoint &position) { hover(position - pos()); }

    /// The zone of the recorded press, -1 for none.
    int pressedZone() const
    {
        return pressedArea.count(true) == 1 ? pressedArea.indexOf(true) : -1;
    }
};

#endif // BASEWINDOWPROBE_H
