#include "Paws.h"

#include "Names.h"
#include "Trail.h"
#include "Windows.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QDrag>
#include <QPointer>
#include <QTest>
#include <QTimer>
#include <QTimerEvent>
#include <QWheelEvent>
#include <QWidget>
#include <QWindow>

// The functions behind QTest::mouseClick() and its like: those run the event loop after each event,
// and there the next event would come before this one has ended.

namespace {

QWidget *anyPart(Dice &dice, QWidget *window)
{
    QWidgetList parts = { window };
    const QWidgetList children = window->findChildren<QWidget *>();
    for (QWidget *child : children) {
        if (child->isVisible() && child->window() == window)
            parts.append(child);
    }
    return dice.pick(parts);
}

// A point in a part or just beside it; in a view, mostly one on a row.
QPoint anyPoint(Dice &dice, QWidget *part)
{
    const auto *view = qobject_cast<QAbstractItemView *>(part->parentWidget());
    if (view && view->model() && part == view->viewport() && !dice.once(3)) {
        const int rows = view->model()->rowCount(view->rootIndex());
        const QModelIndex index = view->model()->index(dice.roll(rows), 0, view->rootIndex());
        if (index.isValid())
            return view->visualRect(index).topLeft() + QPoint(12, 6);
    }
    return { dice.between(-2, part->width() + 2), dice.between(-2, part->height() + 2) };
}

Qt::KeyboardModifiers anyModifiers(Dice &dice)
{
    return dice.pick<Qt::KeyboardModifiers>({ Qt::NoModifier, Qt::NoModifier, Qt::NoModifier,
                                              Qt::ControlModifier, Qt::ShiftModifier,
                                              Qt::AltModifier });
}

void turnWheel(Dice &dice, QWidget *part, const QPoint &position)
{
    QWheelEvent event(position, part->mapToGlobal(position), QPoint(),
                      QPoint(0, dice.pick({ -120, 120 })), Qt::NoButton, Qt::NoModifier,
                      Qt::NoScrollPhase, false);
    QApplication::sendEvent(part, &event);
}

QByteArray nameOf(const QWidget *widget)
{
    return QByteArray(widget->metaObject()->className()) + ' ' + widget->objectName().toUtf8();
}

// Two presses of one button are a double-click unless they are this far apart.
constexpr int Pause = 1000;

} // namespace

struct Paws::Touch
{
    QPointer<QWidget> window; // a press may destroy or hide it
    QPoint position;
    Qt::MouseButton button = Qt::NoButton;
    Qt::KeyboardModifiers modifiers;

    void send(QEvent::Type type, Qt::MouseButtons held, int time) const
    {
        QWindow *handle = window ? window->windowHandle() : nullptr;
        if (handle && handle->isVisible())
            qt_handleMouseEvent(handle, position, handle->mapToGlobal(position), held,
                                type == QEvent::MouseMove ? Qt::NoButton : button, type, modifiers,
                                time);
    }
};

void Paws::move(const Touch &touch)
{
    touch.send(QEvent::MouseMove, held, ++now);
}

void Paws::press(const Touch &touch)
{
    held |= touch.button;
    touch.send(QEvent::MouseButtonPress, held, ++now);
}

void Paws::release(const Touch &touch)
{
    held &= ~Qt::MouseButtons(touch.button);
    touch.send(QEvent::MouseButtonRelease, held, ++now);
}

void Paws::click(const Touch &touch)
{
    press(touch);
    release(touch);
}

void Paws::useMouse(Dice &dice)
{
    QWidget *window = windows.any(dice);
    if (!window)
        return Trail::note("mouse without a window");
    QWidget *part = anyPart(dice, window);
    const QPoint inPart = anyPoint(dice, part);
    const auto button =
            dice.once(4) ? dice.pick({ Qt::RightButton, Qt::MiddleButton }) : Qt::LeftButton;
    const Touch touch = { window, part->mapTo(window, inPart), button, anyModifiers(dice) };
    const char *const what = dice.pick({ "press", "release", "move", "move", "wheel",
                                         "double-click", "click", "click", "click" });
    Trail::note(QByteArray(what) + " on " + nameOf(part) + " of " + nameOf(window));
    now += Pause;
    switch (what[0]) {
    case 'p':
        return press(touch);
    case 'r':
        return release(touch);
    case 'm':
        return move(touch);
    case 'w':
        return turnWheel(dice, part, inPart);
    case 'd':
        click(touch);
        break;
    default:
        break;
    }
    click(touch);
}

void Paws::useKeys(Dice &dice)
{
    QWidget *widget = windows.any(dice);
    const QPointer<QWindow> window(widget ? widget->windowHandle() : nullptr);
    if (!window)
        return Trail::note("key without a window");
    int key = dice.pick<int>({ Qt::Key_Return,    Qt::Key_Escape, Qt::Key_Tab,  Qt::Key_Backtab,
                               Qt::Key_Space,     Qt::Key_Up,     Qt::Key_Down, Qt::Key_Left,
                               Qt::Key_Right,     Qt::Key_Home,   Qt::Key_End,  Qt::Key_PageDown,
                               Qt::Key_Backspace, Qt::Key_Delete, Qt::Key_A,    Qt::Key_V,
                               Qt::Key_X,         Qt::Key_F2,     Qt::Key_F4,   Qt::Key_Menu });
    Qt::KeyboardModifiers modifiers = anyModifiers(dice);
    QString text;
    if (dice.once(3)) {
        key = Qt::Key_unknown;
        modifiers = Qt::NoModifier;
        text = Names::text(dice).left(20);
    }
    Trail::note("key 0x" + QByteArray::number(key, 16) + ' ' + text.toUtf8() + " for "
                + nameOf(widget));
    qt_handleKeyEvent(window, QEvent::KeyPress, key, modifiers, text);
    if (window && window->isVisible())
        qt_handleKeyEvent(window, QEvent::KeyRelease, key, modifiers, text);
}

void Paws::handleWindow(Dice &dice)
{
    QWidget *window = windows.any(dice);
    if (!window)
        return Trail::note("no window");
    const int what = dice.roll(10);
    Trail::note("handle " + QByteArray::number(what) + ' ' + nameOf(window));
    switch (what) {
    case 0:
    case 1:
        return window->resize(dice.roll(1200), dice.roll(900));
    case 2:
        return window->move(dice.between(-500, 1500), dice.between(-500, 1500));
    case 3:
        return window->setWindowState(dice.pick({ Qt::WindowNoState, Qt::WindowMaximized,
                                                  Qt::WindowMinimized, Qt::WindowFullScreen }));
    case 4:
        window->close();
        return;
    case 5:
        return window->hide();
    case 6: {
        QEvent change(dice.pick({ QEvent::LanguageChange, QEvent::StyleChange, QEvent::FontChange,
                                  QEvent::PaletteChange }));
        QApplication::sendEvent(window, &change);
        return;
    }
    case 7:
        return window->setStyleSheet(dice.once(2) ? QString() : QStringLiteral("*{color:red}"));
    case 8:
        return window->setEnabled(dice.once(2));
    default:
        window->activateWindow();
    }
}

void Paws::fireTimer(Dice &dice)
{
    QWidget *window = windows.any(dice);
    if (!window)
        return Trail::note("no timer");
    QList<QTimer *> timers;
    const QList<QTimer *> all = window->findChildren<QTimer *>();
    for (QTimer *timer : all) {
        if (timer->isActive())
            timers.append(timer);
    }
    if (timers.isEmpty())
        return Trail::note("no timer");
    Trail::note("timer of " + nameOf(window));
    QTimer *timer = dice.pick(timers);
    QTimerEvent event(timer->timerId());
    QApplication::sendEvent(timer, &event);
}

bool Paws::closeTop()
{
    QDrag::cancel();
    if (QWidget *popup = QApplication::activePopupWidget()) {
        Trail::note("close pop-up " + nameOf(popup));
        popup->close();
        return true;
    }
    const QPointer<QWidget> modal(QApplication::activeModalWidget());
    if (!modal)
        return false;
    Trail::note("close modal " + nameOf(modal));
    modal->close();
    // It may have refused.
    if (modal && QApplication::activeModalWidget() == modal)
        modal->hide();
    return true;
}
