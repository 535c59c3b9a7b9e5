#include "Hand.h"

#include <QTest>
#include <QWidget>
#include <QWindow>

namespace {

// A window that has gone meanwhile takes no events.
bool canTake(const QWidget *window)
{
    return window->isVisible() && window->windowHandle();
}

// The window may have moved under the pointer.
QPoint inWindow(const QWidget *window, const QPoint &position)
{
    return window->windowHandle()->mapFromGlobal(position);
}

} // namespace

void Hand::press(QWidget *window, const QPoint &position, Qt::MouseButton button)
{
    if (!canTake(window))
        return;
    QTest::mousePress(window->windowHandle(), button, Qt::NoModifier, inWindow(window, position));
}

void Hand::moveTo(QWidget *window, const QPoint &position)
{
    if (!canTake(window))
        return;
    QTest::mouseMove(window->windowHandle(), inWindow(window, position));
}

void Hand::release(QWidget *window, const QPoint &position, Qt::MouseButton button)
{
    if (!canTake(window))
        return;
    QTest::mouseRelease(window->windowHandle(), button, Qt::NoModifier, inWindow(window, position));
}

void Hand::click(QWidget *window, const QPoint &position, Qt::MouseButton button)
{
    if (!canTake(window))
        return;
    moveTo(window, position);
    QTest::mouseClick(window->windowHandle(), button, Qt::NoModifier, inWindow(window, position));
}

void Hand::doubleClick(QWidget *window, const QPoint &position)
{
    if (!canTake(window))
        return;
    moveTo(window, position);
    QTest::mouseDClick(window->windowHandle(), Qt::LeftButton, Qt::NoModifier,
                       inWindow(window, position));
}

void Hand::type(QWidget *window, const QString &text)
{
    if (!canTake(window))
        return;
    for (const QChar &character : text)
        QTest::keyClick(window->windowHandle(), character.toLatin1());
}

void Hand::key(QWidget *window, Qt::Key key, Qt::KeyboardModifiers modifiers)
{
    if (!canTake(window))
        return;
    QTest::keyClick(window->windowHandle(), key, modifiers);
}
