#ifndef HAND_H
#define HAND_H

#include <QPoint>
#include <QString>

class QWidget;

/// The user's hand: real mouse and key events, which enter at the window system's end, so that
/// grabbing, hover and modality are Qt's own. All positions are on the screen. For the GUI thread.
namespace Hand {

void press(QWidget *window, const QPoint &position, Qt::MouseButton button = Qt::LeftButton);
void moveTo(QWidget *window, const QPoint &position);
void release(QWidget *window, const QPoint &position, Qt::MouseButton button = Qt::LeftButton);
void click(QWidget *window, const QPoint &position, Qt::MouseButton button = Qt::LeftButton);
void doubleClick(QWidget *window, const QPoint &position);
void type(QWidget *window, const QString &text);
void key(QWidget *window, Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);

} // namespace Hand

#endif // HAND_H
