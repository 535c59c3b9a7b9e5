"""The program under test as the driver sees it: what it reports, and a user's actions on it."""

import json
import os
import select
import time

from session import VncSession, end, spawn

SECONDS = 20
DRAG_STEPS = 5
REPEAT_SECONDS = 0.3


class SceneFailed(Exception):
    pass


class Widget:
    def __init__(self, state):
        self.state = state
        self.rect = tuple(state["rect"])
        self.text = state.get("text", "")

    def __getattr__(self, name):
        return self.state[name]

    @property
    def middle(self):
        return middle(self.rect)

    def item(self, text):
        return first(Widget(state) for state in self.state["items"] if state["text"] == text)

    def item_texts(self):
        return [state["text"] for state in self.state["items"]]


class Window(Widget):
    def __init__(self, state):
        super().__init__(state)
        self.widgets = sorted((Widget(widget) for widget in state["widgets"]),
                              key=lambda widget: (widget.rect[1], widget.rect[0]))

    def named(self, name):
        return first(widget for widget in self.widgets if widget.state["name"] == name)

    def button(self, text):
        return first(widget for widget in self.widgets
                     if widget.text == text and widget.state["class"] == "QPushButton")

    def of_class(self, name, index=0):
        """The widgets of a class count from the top, then from the left."""
        found = [widget for widget in self.widgets if widget.state["class"] == name]
        return found[index] if index < len(found) else None


class Report:
    def __init__(self, state):
        self.pointer = tuple(state["pointer"])
        self.releases = state["releases"]
        self.windows = [Window(window) for window in state["windows"]]

    def window(self, name):
        """By class or object name."""
        return first(window for window in self.windows
                     if name in (window.state["class"], window.state["name"]))


def first(items):
    return next(iter(items), None)


def middle(rect):
    return (rect[0] + rect[2] // 2, rect[1] + rect[3] // 2)


class Host:
    """Runs one scene. As a context manager it checks that the program ends well, unwarned."""

    def __init__(self, session, command, scene):
        self.session = session
        self.lines = b""
        self.events = []
        self.process = spawn(command + [scene], env=session.environment, stdin=-1, stdout=-1)
        if isinstance(session, VncSession):
            session.connect()
        self.display = session.display
        self.display.move(0, 0)  # the first target lies elsewhere: the move to it is an event

    def __enter__(self):
        return self

    def __exit__(self, kind, value, trace):
        try:
            if kind is None:
                self._finish()
        finally:
            end(self.process)
            self.process.stdin.close()
            self.process.stdout.close()

    def _finish(self):
        self.report()
        warnings = self.events_named("warning")
        check(not warnings, "warnings: %s" % warnings)
        self.process.stdin.close()
        check(self.process.wait(SECONDS) == 0, "the host ended with %s" % self.process.returncode)

    # What it says

    def report(self):
        self.process.stdin.write(b"report\n")
        self.process.stdin.flush()
        deadline = time.monotonic() + SECONDS
        while True:
            message = json.loads(self._line(deadline))
            if "windows" in message:
                return Report(message)
            self.events.append(message)

    def _line(self, deadline):
        while b"\n" not in self.lines:
            ready, _, _ = select.select([self.process.stdout], [], [],
                                        max(0, deadline - time.monotonic()))
            part = os.read(self.process.stdout.fileno(), 65536) if ready else b""
            if not part:
                raise SceneFailed("the host does not answer, exit code %s" % self.process.poll())
            self.lines += part
        line, self.lines = self.lines.split(b"\n", 1)
        return line

    def events_named(self, name):
        return [event for event in self.events if event["event"] == name]

    def wait(self, condition, what):
        """Returns what the condition makes of a report as soon as that is true."""
        deadline = time.monotonic() + SECONDS
        while True:
            report = self.report()
            value = condition(report)
            if value:
                return value
            if time.monotonic() > deadline:
                raise SceneFailed("waited in vain for %s\nwindows: %s\nevents: %s" % (
                    what, [self._described(window) for window in report.windows], self.events))
            time.sleep(0.005)

    def _described(self, window):
        server = self.display.rect(window.state["id"]) if self.session.is_x else "not asked"
        return "%s at %s, server: %s" % (window.state["class"], window.rect, server)

    def wait_event(self, name, count=1):
        self.wait(lambda report: len(self.events_named(name)) >= count, "event " + name)
        return self.events_named(name)[count - 1]

    def window(self, name):
        """The window once it is there and has come to rest."""
        self.wait(lambda report: report.window(name), "window " + name)
        self.settle()
        return self.report().window(name)

    def gone(self, name):
        self.wait(lambda report: not report.window(name), "the end of window " + name)

    def widget(self, window, pick):
        """pick takes the Window and returns one of its widgets."""
        self.wait(lambda report: report.window(window) and pick(report.window(window)),
                  "a widget in " + window)
        self.settle()
        return self.wait(lambda report: report.window(window) and pick(report.window(window)),
                         "a widget in " + window)

    def settle(self):
        """Waits until the program and the server agree, twice running, on where all windows are."""
        before = []
        repeat_at = time.monotonic() + REPEAT_SECONDS

        def at_rest(report):
            nonlocal repeat_at
            now = [(window.state["id"], window.rect) for window in report.windows]
            astray = [(window, rect) for window, rect in now
                      if self.session.is_x and self.display.rect(window) != rect]
            if astray:
                before.clear()
                # Qt asks for a new window's place, perhaps before openbox has put the frame there,
                # and then believes in the top-left corner until openbox tells it again.
                lost = [window for window, rect in astray if rect[:2] == (0, 0)]
                if lost and self.session.has_window_manager and time.monotonic() > repeat_at:
                    self.display.repeat_place(lost[0])
                    repeat_at = time.monotonic() + REPEAT_SECONDS
                return False
            at_rest_now = before == now
            before[:] = now
            return at_rest_now

        self.wait(at_rest, "the windows to come to rest")

    # A user's actions

    def point(self, position):
        """Moves the pointer over a window, or anywhere with a button held there, and waits until
        the program knows: positions that come while the server moves a window are stale."""
        self.display.move(*position)
        self.wait(lambda report: report.pointer == position, "the pointer at %s,%s" % position)
        self.settle()

    def press(self, position, button="left"):
        self.point(position)
        self.display.press(button)

    def release(self, button="left"):
        count = self.report().releases
        self.display.release(button)
        self.wait(lambda report: report.releases > count, "the release")
        self.settle()

    def click(self, position, button="left"):
        self.press(position, button)
        self.release(button)

    def double_click(self, position):
        count = self.report().releases
        self.point(position)
        for _ in range(2):
            self.display.press()
            self.display.release()
        self.wait(lambda report: report.releases >= count + 2, "the double-click")
        self.settle()

    def drag_to(self, end_position, steps=DRAG_STEPS):
        """Moves the held pointer; the last position comes twice, the end alone counts."""
        start = self.display.position
        for step in range(1, steps + 1):
            self.point(tuple(a + (b - a) * step // steps for a, b in zip(start, end_position)))
        self.repeat_position()

    def repeat_position(self):
        x, y = self.display.position
        self.point((x, y - 1 if y > 0 else y + 1))
        self.point((x, y))

    def open_dialog(self, name):
        """By the button of the owner's window."""
        self.click_widget("owner", lambda window: window.button("Open"))
        return self.window(name)

    def click_widget(self, window, pick, button="left"):
        self.click(self.widget(window, pick).middle, button)

    def type_into(self, window, pick, text):
        """Clicks on an edit, waits for the focus to come to it, and types."""
        self.click_widget(window, pick)
        self.wait(lambda report: pick(report.window(window)).focus, "the focus")
        self.display.type(text)


def check(condition, what):
    if not condition:
        raise SceneFailed(what)


def check_equal(actual, expected, what):
    check(actual == expected, "%s is %r instead of %r" % (what, actual, expected))
