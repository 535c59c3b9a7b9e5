#include "Pointer.h"

#include <QTest>
#include <QWindow>

Pointer::Pointer(QWidget *window)
    : window(window)
{}

void Pointer::press(const QPoint &position, Qt::MouseButton button)
{
    this->position = position;
    QTest::mousePress(window->windowHandle(), button, Qt::NoModifier, inWindow());
}

void Pointer::moveTo(const QPoint &position)
{
    this->position = position;
    QTest::mouseMove(window->windowHandle(), inWindow());
}

void Pointer::release(Qt::MouseButton button)
{
    // The press may have closed the window.
    if (window && window->windowHandle())
        QTest::mouseRelease(window->windowHandle(), button, Qt::NoModifier, inWindow());
}

void Pointer::click(const QPoint &position, Qt::MouseButton button)
{
    press(position, button);
    release(button);
}

void Pointer::doubleClick(const QPoint &position)
{
    this->position = position;
    QTest::mouseDClick(window->windowHandle(), Qt::LeftButton, Qt::NoModifier, inWindow());
}

// The window may have moved under the pointer.
QPoint Pointer::inWindow() const
{
    return window->windowHandle()->mapFromGlobal(position);
}

QPoint middleOf(const QWidget *widget)
{
    return widget->mapToGlobal(widget->rect().center());
}
