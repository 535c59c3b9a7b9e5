#include "frame/QZelBaseWindows.h"

#include <QHoverEvent>
#include <QMouseEvent>

#include <algorithm>

namespace {

// The index order is also the order in which the zones are tested.
enum Zone { Left, Right, Top, Bottom, TopLeft, TopRight, BottomLeft, BottomRight, ZoneCount };

constexpr Qt::CursorShape ZoneCursors[ZoneCount] = {
    Qt::SizeHorCursor,   Qt::SizeHorCursor,   Qt::SizeVerCursor,   Qt::SizeVerCursor,
    Qt::SizeFDiagCursor, Qt::SizeBDiagCursor, Qt::SizeBDiagCursor, Qt::SizeFDiagCursor,
};

// ZoneCount for none.
int zoneAt(const QPoint &position, const QList<QRect> &zones)
{
    // Nearly every move is between the corners, where no zone is.
    const QRect &topLeft = zones.at(TopLeft);
    const QRect &bottomRight = zones.at(BottomRight);
    if (position.x() > topLeft.right() && position.y() > topLeft.bottom()
        && position.x() < bottomRight.left() && position.y() < bottomRight.top())
        return ZoneCount;
    int zone = 0;
    while (zone < ZoneCount && !zones.at(zone).contains(position))
        ++zone;
    return zone;
}

} // namespace

QZelBaseWindows::QZelBaseWindows(QWidget *parent)
    : QMainWindow(parent)
{
    for (int zone = 0; zone < ZoneCount; ++zone) {
        pressedArea.append(false);
        areaRects.append(QRect());
    }
    setWindowFlags(windowFlags() | Qt::Window | Qt::FramelessWindowHint | Qt::WindowSystemMenuHint);
    installEventFilter(this);
    setAttribute(Qt::WA_StyledBackground, true);
}

QZelBaseWindows::~QZelBaseWindows() = default;

bool QZelBaseWindows::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == this) {
        if (event->type() == QEvent::WindowStateChange)
            doWindowStateChange(event);
        else
            doResizeEvent(event);
    } else if (watched == titleBar) {
        if (event->type() == QEvent::MouseButtonDblClick
            || event->type() == QEvent::NonClientAreaMouseButtonDblClick)
            Q_EMIT titleDblClick();
    }
    return QObject::eventFilter(watched, event);
}

void QZelBaseWindows::doResizeEvent(QEvent *event)
{
    switch (event->type()) {
    case QEvent::Resize:
        updateAreaRects();
        break;
    case QEvent::MouseButtonPress:
        recordPress(static_cast<QMouseEvent *>(event)->localPos().toPoint());
        break;
    case QEvent::MouseButtonRelease:
        forgetPress();
        break;
    case QEvent::HoverMove:
        followHover(static_cast<QHoverEvent *>(event)->posF().toPoint());
        break;
    default:
        break;
    }
}

void QZelBaseWindows::doWindowStateChange(QEvent *event)
{
    Q_UNUSED(event)
    const bool normal = windowState() == Qt::WindowNoState;
    // Overwrites what the slots set: back in the normal state the window always moves and resizes.
    moveEnable = normal;
    resizeEnable = normal;
    Q_EMIT windowStateChange(!normal);
}

void QZelBaseWindows::setPadding(int padding)
{
    this->padding = padding;
}

void QZelBaseWindows::setMoveEnable(bool moveEnable)
{
    this->moveEnable = moveEnable;
}

void QZelBaseWindows::setResizeEnable(bool resizeEnable)
{
    this->resizeEnable = resizeEnable;
}

void QZelBaseWindows::setTitleBar(QWidget *titleBar)
{
    this->titleBar = titleBar;
    if (titleBar)
        titleBar->installEventFilter(this);
}

void QZelBaseWindows::showEvent(QShowEvent *event)
{
    setAttribute(Qt::WA_Mapped, true);
    QMainWindow::showEvent(event);
}

bool QZelBaseWindows::nativeEvent(const QByteArray &eventType, void *message, long *result)
{
    Q_UNUSED(message)
    Q_UNUSED(result)
    // No platform needs handling of its own yet; the kinds are told apart so that one can get it.
    if (eventType == "windows_generic_MSG")
        return false;
    if (eventType == "NSEvent")
        return false;
    if (eventType == "xcb_generic_event_t")
        return false;
    return false;
}

void QZelBaseWindows::updateAreaRects()
{
    const int w = geometry().width();
    const int h = geometry().height();
    // A band wider than the window covers it whole either way; a negative one is none.
    const int p = qBound(0, padding, qMax(w, h));
    areaRects[Left] = QRect(0, p, p, h - 2 * p);
    areaRects[Right] = QRect(w - p, p, p, h - 2 * p);
    areaRects[Top] = QRect(p, 0, w - 2 * p, p);
    areaRects[Bottom] = QRect(p, h - p, w - 2 * p, p);
    areaRects[TopLeft] = QRect(0, 0, p, p);
    areaRects[TopRight] = QRect(w - p, 0, p, p);
    areaRects[BottomLeft] = QRect(0, h - p, p, p);
    areaRects[BottomRight] = QRect(w - p, h - p, p, p);
}

// Recorded whether or not moving and resizing are on: only hovering asks for that.
void QZelBaseWindows::recordPress(const QPoint &position)
{
    pressPoint = position;
    pressRect = geometry();
    const int zone = zoneAt(position, areaRects);
    if (zone < ZoneCount)
        pressedArea[zone] = true;
    else
        isPressed = true;
}

void QZelBaseWindows::forgetPress()
{
    setCursor(Qt::ArrowCursor);
    isPressed = false;
    for (bool &pressed : pressedArea)
        pressed = false;
}

void QZelBaseWindows::followHover(const QPoint &position)
{
    if (resizeEnable)
        updateHoverCursor(position);
    else if (!moveEnable)
        return;

    // The press point stays the reference throughout a drag: after each move or resize the pointer
    // is at the same point of the window again.
    const int dx = position.x() - pressPoint.x();
    const int dy = position.y() - pressPoint.y();
    if (moveEnable && isPressed)
        move(x() + dx, y() + dy);
    if (resizeEnable)
        resizeByPressedArea(dx, dy);
}

void QZelBaseWindows::updateHoverCursor(const QPoint &position)
{
    const int zone = zoneAt(position, areaRects);
    const Qt::CursorShape shape = zone < ZoneCount ? ZoneCursors[zone] : Qt::ArrowCursor;
    // Setting a cursor costs more than all the rest of a hover move.
    if (!testAttribute(Qt::WA_SetCursor) || cursor().shape() != shape)
        setCursor(shape);
}

// Zones that move the left or top edge stop at the minimum size by themselves: left to the
// toolkit's clamping, the opposite edge would shift. The others rely on that clamping.
void QZelBaseWindows::resizeByPressedArea(int dx, int dy)
{
    const auto pressed = std::find(pressedArea.cbegin(), pressedArea.cend(), true);
    if (pressed == pressedArea.cend())
        return;
    const int w = width() - dx;
    const int h = height() - dy;
    const bool tooNarrow = w < minimumSize().width();
    const bool tooLow = h < minimumSize().height();
    const QRect &r = pressRect;

    switch (pressed - pressedArea.cbegin()) {
    case Left:
        if (!tooNarrow)
            setGeometry(x() + dx, r.y(), w, r.height());
        break;
    case Right:
        setGeometry(r.x(), r.y(), r.width() + dx, r.height());
        break;
    case Top:
        if (!tooLow)
            setGeometry(r.x(), y() + dy, r.width(), h);
        break;
    case Bottom:
        setGeometry(r.x(), r.y(), r.width(), r.height() + dy);
        break;
    case TopLeft:
        resizeTopLeft(w, h, dx, dy);
        break;
    case TopRight:
        if (!tooLow)
            setGeometry(x(), y() + dy, r.width() + dx, h);
        break;
    case BottomLeft:
        resizeBottomLeft(w, r.height() + dy, dx);
        break;
    case BottomRight:
        setGeometry(x(), y(), r.width() + dx, r.height() + dy);
        break;
    default:
        break;
    }
}

// Two steps, each axis guarded for itself. The second still asks for a width below the minimum: the
// toolkit then holds the width there while the height goes on changing.
void QZelBaseWindows::resizeTopLeft(int width, int height, int dx, int dy)
{
    if (width >= minimumSize().width())
        setGeometry(x() + dx, y(), width, height);
    if (height >= minimumSize().height())
        setGeometry(x(), y() + dy, width, height);
}

void QZelBaseWindows::resizeBottomLeft(int width, int height, int dx)
{
    if (width >= minimumSize().width())
        setGeometry(x() + dx, y(), width, height);
    if (height >= minimumSize().height())
        setGeometry(x(), y(), width, height);
}
