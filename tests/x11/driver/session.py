"""Starts what a scene runs on: an X server of its own, with or without a window manager, or Qt's
vnc platform. Ends what it started, by id; should the driver be killed, the kernel ends it."""

import contextlib
import os
import select
import shutil
import signal
import socket
import subprocess
import time

from xdisplay import XDisplay
from vncdisplay import VncDisplay

HERE = os.path.dirname(os.path.abspath(__file__))
START_SECONDS = 30
SCREEN = (1280, 800)
# Kept free at the left, top, right and bottom edge by openbox.xml, as panels would.
MARGINS = (20, 40, 10, 30)


class Session:
    """A screen with its pointer and keyboard, and the environment for programs to appear on it."""

    def __init__(self, kind, display, environment, available):
        self.kind = kind
        self.display = display
        self.environment = environment
        self.available = available  # area for windows: x, y, width, height

    @property
    def is_x(self):
        return self.kind != "vnc"

    @property
    def has_window_manager(self):
        return self.kind == "openbox"


def spawn(command, **options):
    if not shutil.which(command[0]):
        raise RuntimeError(command[0] + " is not installed")
    return subprocess.Popen(["setpriv", "--pdeathsig", "KILL"] + command, **options)


def end(process):
    if process.poll() is None:
        process.send_signal(signal.SIGTERM)
        try:
            process.wait(10)
        except subprocess.TimeoutExpired:
            process.kill()
            process.wait()


def program_environment(**changes):
    # No OpenGL and no message bus, which Qt would load and start for nothing.
    environment = dict(os.environ, QT_XCB_GL_INTEGRATION="none",
                       DBUS_SESSION_BUS_ADDRESS="unix:path=/nonexistent", **changes)
    environment.pop("WAYLAND_DISPLAY", None)
    return environment


@contextlib.contextmanager
def x_session(manager):
    # Without cursor themes Qt, and Xlib here, take the cursors from the server's own font.
    os.environ["XCURSOR_PATH"] = "/nonexistent"
    reading, writing = os.pipe()
    server = spawn(["Xvfb", "-displayfd", str(writing), "-screen", "0", "%dx%dx24" % SCREEN,
                    "-nolisten", "tcp", "-noreset"],
                   pass_fds=[writing], stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
    os.close(writing)
    manager_process = None
    try:
        name = ":" + read_line(reading, "Xvfb")
        display = XDisplay(name)
        environment = program_environment(DISPLAY=name, QT_QPA_PLATFORM="xcb")
        available = (0, 0) + SCREEN
        if manager == "openbox":
            manager_process = spawn(["openbox", "--sm-disable", "--startup", "echo ready",
                                     "--config-file", os.path.join(HERE, "openbox.xml")],
                                    env=environment, stdout=subprocess.PIPE)
            read_line(manager_process.stdout.fileno(), "openbox")
            left, top, right, bottom = MARGINS
            available = (left, top, SCREEN[0] - left - right, SCREEN[1] - top - bottom)
        yield Session(manager, display, environment, available)
    finally:
        os.close(reading)
        if manager_process:
            end(manager_process)
            manager_process.stdout.close()
        end(server)


def read_line(descriptor, program):
    """The line with which a program says that it is ready."""
    text = b""
    deadline = time.monotonic() + START_SECONDS
    while not text.endswith(b"\n"):
        ready, _, _ = select.select([descriptor], [], [], max(0, deadline - time.monotonic()))
        part = os.read(descriptor, 16) if ready else b""
        if not part:
            raise RuntimeError(program + " did not start")
        text += part
    return text.decode().strip()


class VncSession(Session):
    """The host itself is the server: connect() once it runs."""

    def __init__(self):
        with socket.socket() as free:
            free.bind(("127.0.0.1", 0))
            self.port = free.getsockname()[1]
        platform = "vnc:port=%d:size=%dx%d" % ((self.port,) + SCREEN)
        super().__init__("vnc", None, program_environment(QT_QPA_PLATFORM=platform),
                         (0, 0) + SCREEN)

    def connect(self):
        self.display = VncDisplay(self.port)
