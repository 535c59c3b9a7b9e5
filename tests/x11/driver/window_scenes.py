"""The base window and the title bar."""

from host import Host, check, check_equal

BASE = "QZelBaseWindows"
START = (300, 200, 400, 300)
MINIMUM = (200, 150)
NO_STATE, MAXIMIZED = 0, 2
STEP = (60, 40)

# Zone: cursor, where it is as a fraction of the window, and what a drag by (dx, dy) makes of the
# rectangle: the factors of dx and dy in x, y, width and height.
ZONES = {
    "left": ("horizontal", (0, 0.5), (1, 0, -1, 0)),
    "right": ("horizontal", (1, 0.5), (0, 0, 1, 0)),
    "top": ("vertical", (0.5, 0), (0, 1, 0, -1)),
    "bottom": ("vertical", (0.5, 1), (0, 0, 0, 1)),
    "top left": ("fdiag", (0, 0), (1, 1, -1, -1)),
    "top right": ("bdiag", (1, 0), (0, 1, 1, -1)),
    "bottom left": ("bdiag", (0, 1), (1, 0, -1, 1)),
    "bottom right": ("fdiag", (1, 1), (0, 0, 1, 1)),
}


def at(rect, fraction):
    """A pixel of a rectangle; 0 and 1 are its first and last row or column."""
    return (rect[0] + int((rect[2] - 1) * fraction[0]), rect[1] + int((rect[3] - 1) * fraction[1]))


def moved(rect, dx, dy):
    return (rect[0] + dx, rect[1] + dy) + rect[2:]


def by(position, dx, dy):
    return (position[0] + dx, position[1] + dy)


def check_cursor(host, shape):
    if host.session.is_x:
        host.wait(lambda report: host.display.cursor() == shape, "the cursor " + shape)


def move(session, command):
    """A drag anywhere but on the border carries the window along."""
    with Host(session, command, "base") as host:
        check_equal(host.window(BASE).rect, START, "the first rectangle")
        rect = START
        for fraction, (dx, dy) in (((0.5, 0.5), (137, 91)), ((0.2, 0.8), (-203, -61))):
            host.press(at(rect, fraction))
            host.drag_to(by(at(rect, fraction), dx, dy))
            host.release()
            rect = moved(rect, dx, dy)
            check_equal(host.window(BASE).rect, rect, "the moved rectangle")
        # Released, the window stays where it is.
        host.point(at(rect, (0.6, 0.6)))
        check_equal(host.window(BASE).rect, rect, "the rectangle after the release")

    with Host(session, command, "titlebar") as host:
        bar = host.widget("strip", lambda window: window.of_class("QTitleBar"))
        start = by(bar.middle, -40, 0)
        host.press(start)
        host.drag_to(by(start, 70, -30))
        host.release()
        check_equal(host.window("strip").rect, moved(START, 70, -30), "the rectangle")
        host.press(by(start, 70, -30), "right")
        host.drag_to(by(start, 90, -20))
        host.release("right")
        check_equal(host.window("strip").rect, moved(START, 70, -30), "after the right button")
        host.click_widget("strip", lambda window: window.of_class("QPushButton"))
        host.wait_event("closeClicked")
        check(host.report().window("strip"), "the window is closed")


def resize(session, command):
    """All eight zones, outwards and back inwards, and the two ways to stop at the minimum."""
    with Host(session, command, "base") as host:
        rect = host.window(BASE).rect
        for zone, (cursor, place, factors) in ZONES.items():
            for direction in (1, -1):
                rect = resize_once(host, rect, zone, cursor, place, factors, direction)
            check_equal(rect, START, "the rectangle after there and back by the " + zone)
        stop_at_minimum(host)


def resize_once(host, rect, zone, cursor, place, factors, direction):
    host.point(at(rect, (0.5, 0.5)))
    check_cursor(host, "arrow")
    host.point(at(rect, place))
    check_cursor(host, cursor)
    dx = STEP[0] * direction * (1 if place[0] else -1)
    dy = STEP[1] * direction * (1 if place[1] else -1)
    host.press(at(rect, place))
    host.drag_to(by(at(rect, place), dx, dy))
    host.release()
    deltas = (dx, dy, dx, dy)
    expected = tuple(value + factor * delta
                     for value, factor, delta in zip(rect, factors, deltas))
    check_equal(host.window(BASE).rect, expected, "the rectangle after the " + zone)
    return expected


def stop_at_minimum(host):
    """The left edge stops at the last step that fits; the right one is held exactly there."""
    host.press(at(START, (0, 0.5)))
    host.drag_to(by(at(START, (0, 0.5)), 330, 0), steps=11)
    host.release()
    x, y, width, height = host.window(BASE).rect
    check_equal((x + width, y, height), (START[0] + START[2], START[1], START[3]), "the far edge")
    check(MINIMUM[0] <= width <= MINIMUM[0] + 30, "the width %d has not stopped" % width)

    rect = (x, y, width, height)
    host.press(at(rect, (1, 0.5)))
    host.drag_to(by(at(rect, (1, 0.5)), -width // 2, 0))
    host.release()
    check_equal(host.window(BASE).rect, (x, y, MINIMUM[0], height), "the narrowest rectangle")


def title(session, command):
    """Double-click on the title: maximise, nothing drags, restore, all works again."""
    with Host(session, command, "base") as host:
        host.window(BASE)
        maximized = toggle(host, MAXIMIZED, 1)
        # Without a window manager nobody changes the geometry of a shown window.
        expected = session.available if session.has_window_manager else START
        check_equal(maximized.rect, expected, "the maximised rectangle")
        for fraction in ((0.5, 0.5), (0, 0.5), (1, 1)):
            host.point(at(maximized.rect, fraction))
            host.display.press()
            host.drag_to(by(at(maximized.rect, (0.5, 0.5)), 50, 40))
            host.release()
            check_equal(host.window(BASE).rect, expected, "the rectangle after a drag")

        restored = toggle(host, NO_STATE, 2)
        check_equal(restored.rect, START, "the restored rectangle")
        host.press(at(START, (0.5, 0.5)))
        host.drag_to(by(at(START, (0.5, 0.5)), 45, 35))
        host.release()
        check_equal(host.window(BASE).rect, moved(START, 45, 35), "the rectangle moved again")
        check_equal([event["changed"] for event in host.events_named("windowStateChange")],
                    [True, False], "the state changes")


def toggle(host, state, count):
    host.double_click(host.widget(BASE, lambda window: window.named("title")).middle)
    host.wait_event("windowStateChange", count)
    check_equal(len(host.events_named("titleDblClick")), count, "the double-clicks")
    host.wait(lambda report: report.window(BASE).state["state"] == state, "the state")
    return settled_state(host, state)


def settled_state(host, state):
    """The window manager answers a change of state with a new size some time later."""
    if host.session.has_window_manager:
        expected = host.session.available if state == MAXIMIZED else START
        host.wait(lambda report: report.window(BASE).rect == expected, "the size of the state")
    return host.window(BASE)


def outside(session, command):
    """A drag that leaves its window and ends outside is over: nothing sticks to the pointer."""
    with Host(session, command, "base") as host:
        host.window(BASE)
        host.press(at(START, (1, 0.5)))
        start = host.display.position
        host.drag_to((start[0] + STEP[0], START[1] + START[3] + 100))
        host.release()
        wide = START[:2] + (START[2] + STEP[0], START[3])
        check_equal(host.window(BASE).rect, wide, "the wide rectangle")
        for fraction in ((0.1, 0.5), (0.9, 0.9), (0.5, 0.5)):
            host.point(at(wide, fraction))
        check_cursor(host, "arrow")
        check_equal(host.window(BASE).rect, wide, "the rectangle after the release")

    with Host(session, command, "shell") as host:
        host.open_dialog("QZelDialog")
        strip = host.widget("QZelDialog", lambda window: window.named("wgt_TitleBar"))
        host.press(strip.middle)
        width, height = session.display.size()
        host.drag_to((width - 1, height - 1))
        dialog = host.window("QZelDialog").rect
        check(dialog[0] + dialog[2] < width, "the pointer is not outside the dialog")
        host.release()
        host.point(host.widget("QZelDialog", lambda window: window.named("wgt_TitleBar")).middle)
        host.point(by(host.display.position, -60, 10))
        check_equal(host.window("QZelDialog").rect, dialog, "the dialog after the release")
