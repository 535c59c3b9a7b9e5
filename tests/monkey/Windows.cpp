#include "Windows.h"

#include <QApplication>
#include <QEvent>

Windows::Windows(QObject *parent)
    : QObject(parent)
{
    qApp->installEventFilter(this);
}

QWidget *Windows::any(Dice &dice)
{
    QWidget *front = QApplication::activePopupWidget();
    if (!front)
        front = QApplication::activeModalWidget();
    if (front && !dice.once(6))
        return front;
    windows.removeAll(nullptr);
    QWidgetList visible;
    for (const QPointer<QWidget> &window : qAsConst(windows)) {
        if (window->isVisible() && window->isWindow() && window->windowHandle())
            visible.append(window);
    }
    return visible.isEmpty() ? nullptr : dice.pick(visible);
}

bool Windows::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::Show && watched->isWidgetType()) {
        auto *widget = static_cast<QWidget *>(watched);
        ++shownOfClass[widget->metaObject()->className()];
        if (widget->isWindow() && !windows.contains(widget))
            windows.append(widget);
    }
    return QObject::eventFilter(watched, event);
}
