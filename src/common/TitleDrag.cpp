#include "common/TitleDrag.h"

#include <QGuiApplication>
#include <QMouseEvent>
#include <QScreen>
#include <QWidget>

namespace {

// Right and bottom are the last pixels inside the area, so the window stops one pixel short of
// them. The lower bound is applied last: on a screen smaller than the window its top-left corner,
// with the title strip, stays reachable.
QPoint keptInAvailableArea(const QPoint &target, const QSize &size, const QPoint &pointer)
{
    const QScreen *screen = QGuiApplication::screenAt(pointer);
    if (!screen)
        screen = QGuiApplication::primaryScreen();
    if (!screen)
        return target;

    const QRect area = screen->availableGeometry();
    return { qMax(area.left(), qMin(target.x(), area.right() - size.width())),
             qMax(area.top(), qMin(target.y(), area.bottom() - size.height())) };
}

} // namespace

bool TitleDrag::handleEvent(QWidget *window, QEvent *event, bool &pressed, QPoint &offset,
                            Bounds bounds)
{
    switch (event->type()) {
    case QEvent::MouseButtonPress: {
        const auto *press = static_cast<QMouseEvent *>(event);
        if (press->button() == Qt::LeftButton) {
            pressed = true;
            offset = press->screenPos().toPoint() - window->frameGeometry().topLeft();
        }
        return true;
    }
    case QEvent::MouseMove: {
        const auto *move = static_cast<QMouseEvent *>(event);
        if (!pressed || move->buttons() != Qt::LeftButton)
            return false;
        const QPoint pointer = move->screenPos().toPoint();
        const QPoint target = pointer - offset;
        window->move(bounds == Bounds::AvailableArea
                             ? keptInAvailableArea(target, window->size(), pointer)
                             : target);
        return true;
    }
    case QEvent::MouseButtonRelease:
        pressed = false;
        return true;
    default:
        return false;
    }
}
