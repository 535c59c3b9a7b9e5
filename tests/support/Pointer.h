#ifndef POINTER_H
#define POINTER_H

#include <QPoint>
#include <QPointer>
#include <QWidget>

/// A mouse over one shown window. Events enter at the window system's end, so that grabbing, hover,
/// cursors and propagation are Qt's own. All positions are on the screen.
class Pointer
{
public:
    explicit Pointer(QWidget *window);

    void press(const QPoint &position, Qt::MouseButton button = Qt::LeftButton);
    void moveTo(const QPoint &position);
    void release(Qt::MouseButton button = Qt::LeftButton);
    void click(const QPoint &position, Qt::MouseButton button = Qt::LeftButton);
    void doubleClick(const QPoint &position);

private:
    QPoint inWindow() const;

    QPointer<QWidget> window;
    QPoint position;
};

/// The middle of a widget on the screen.
QPoint middleOf(const QWidget *widget);

#endif // POINTER_H
