"""An X server as a user has it: pointer and keyboard through XTEST, and what the server itself says
about windows, their stacking and the cursor. Needs libX11, libXtst and libXfixes, nothing else."""

import ctypes
from ctypes import POINTER, byref, c_char_p, c_int, c_long, c_short, c_uint, c_ulong, c_ushort, \
    c_void_p

X11 = ctypes.CDLL("libX11.so.6")
XTST = ctypes.CDLL("libXtst.so.6")
XFIXES = ctypes.CDLL("libXfixes.so.3")

NAMED_KEYS = {"\t": 0xff09}
BUTTONS = {"left": 1, "middle": 2, "right": 3}
# The glyphs of the cursor font that Qt falls back to without a cursor theme.
GLYPHS = {"arrow": 68, "horizontal": 108, "vertical": 116, "fdiag": 14, "bdiag": 136}


class CursorImage(ctypes.Structure):
    _fields_ = [("x", c_short), ("y", c_short), ("width", c_ushort), ("height", c_ushort),
                ("xhot", c_ushort), ("yhot", c_ushort), ("serial", c_ulong),
                ("pixels", POINTER(c_ulong)), ("atom", c_ulong), ("name", c_char_p)]


class Attributes(ctypes.Structure):
    _fields_ = [("background_pixmap", c_ulong), ("background_pixel", c_ulong),
                ("border_pixmap", c_ulong), ("border_pixel", c_ulong), ("bit_gravity", c_int),
                ("win_gravity", c_int), ("backing_store", c_int), ("backing_planes", c_ulong),
                ("backing_pixel", c_ulong), ("save_under", c_int), ("event_mask", c_long),
                ("do_not_propagate_mask", c_long), ("override_redirect", c_int),
                ("colormap", c_ulong), ("cursor", c_ulong)]


class WindowAttributes(ctypes.Structure):
    _fields_ = [("x", c_int), ("y", c_int), ("width", c_int), ("height", c_int),
                ("border_width", c_int), ("depth", c_int), ("visual", c_void_p), ("root", c_ulong),
                ("kind", c_int), ("bit_gravity", c_int), ("win_gravity", c_int),
                ("backing_store", c_int), ("backing_planes", c_ulong), ("backing_pixel", c_ulong),
                ("save_under", c_int), ("colormap", c_ulong), ("map_installed", c_int),
                ("map_state", c_int), ("all_event_masks", c_long), ("your_event_mask", c_long),
                ("do_not_propagate_mask", c_long), ("override_redirect", c_int),
                ("screen", c_void_p)]


VIEWABLE = 2
INPUT_OUTPUT, INPUT_ONLY = 1, 2
OVERRIDE_REDIRECT = 1 << 9


def declare(library, result, name, *arguments):
    function = getattr(library, name)
    function.restype = result
    function.argtypes = arguments


for declaration in (
        (X11, c_void_p, "XOpenDisplay", c_char_p),
        (X11, c_ulong, "XDefaultRootWindow", c_void_p),
        (X11, c_int, "XSync", c_void_p, c_int),
        (X11, c_int, "XFree", c_void_p),
        (X11, c_int, "XKeysymToKeycode", c_void_p, c_ulong),
        (X11, c_ulong, "XkbKeycodeToKeysym", c_void_p, c_uint, c_int, c_int),
        (X11, c_int, "XGetWindowAttributes", c_void_p, c_ulong, POINTER(WindowAttributes)),
        (X11, c_int, "XTranslateCoordinates", c_void_p, c_ulong, c_ulong, c_int, c_int,
         POINTER(c_int), POINTER(c_int), POINTER(c_ulong)),
        (X11, c_int, "XQueryTree", c_void_p, c_ulong, POINTER(c_ulong), POINTER(c_ulong),
         POINTER(POINTER(c_ulong)), POINTER(c_uint)),
        (X11, c_ulong, "XCreateWindow", c_void_p, c_ulong, c_int, c_int, c_uint, c_uint, c_uint,
         c_int, c_uint, c_void_p, c_ulong, POINTER(Attributes)),
        (X11, c_int, "XMapRaised", c_void_p, c_ulong),
        (X11, c_int, "XDestroyWindow", c_void_p, c_ulong),
        (X11, c_int, "XMoveWindow", c_void_p, c_ulong, c_int, c_int),
        (X11, c_ulong, "XCreateFontCursor", c_void_p, c_uint),
        (X11, c_int, "XDefineCursor", c_void_p, c_ulong, c_ulong),
        (XTST, c_int, "XTestFakeMotionEvent", c_void_p, c_int, c_int, c_int, c_ulong),
        (XTST, c_int, "XTestFakeButtonEvent", c_void_p, c_uint, c_int, c_ulong),
        (XTST, c_int, "XTestFakeKeyEvent", c_void_p, c_uint, c_int, c_ulong),
        (XFIXES, POINTER(CursorImage), "XFixesGetCursorImage", c_void_p)):
    declare(*declaration)

# A window may go between being named and being asked about: such answers are None, not an exit.
HANDLER_TYPE = ctypes.CFUNCTYPE(c_int, c_void_p, c_void_p)
IGNORE_ERRORS = HANDLER_TYPE(lambda display, event: 0)
X11.XSetErrorHandler.argtypes = [HANDLER_TYPE]
X11.XSetErrorHandler(IGNORE_ERRORS)


class XDisplay:
    def __init__(self, name):
        self.display = X11.XOpenDisplay(name.encode())
        if not self.display:
            raise RuntimeError("cannot open the display " + name)
        self.root = X11.XDefaultRootWindow(self.display)
        self.position = (0, 0)
        self.cursors = {self._glyph_pixels(glyph): name for name, glyph in GLYPHS.items()}
        if len(self.cursors) != len(GLYPHS):
            raise RuntimeError("the server's cursors cannot be told apart")

    # Pointer and keyboard

    def move(self, x, y):
        self.position = (x, y)
        XTST.XTestFakeMotionEvent(self.display, -1, x, y, 0)
        self.sync()

    def press(self, button="left"):
        XTST.XTestFakeButtonEvent(self.display, BUTTONS[button], 1, 0)
        self.sync()

    def release(self, button="left"):
        XTST.XTestFakeButtonEvent(self.display, BUTTONS[button], 0, 0)
        self.sync()

    def type(self, text):
        shift = X11.XKeysymToKeycode(self.display, 0xffe1)
        for character in text:
            keysym = NAMED_KEYS.get(character, ord(character))
            code = X11.XKeysymToKeycode(self.display, keysym)
            if code == 0:
                raise RuntimeError("no key for %r" % character)
            shifted = X11.XkbKeycodeToKeysym(self.display, code, 0, 0) != keysym
            if shifted:
                XTST.XTestFakeKeyEvent(self.display, shift, 1, 0)
            XTST.XTestFakeKeyEvent(self.display, code, 1, 0)
            XTST.XTestFakeKeyEvent(self.display, code, 0, 0)
            if shifted:
                XTST.XTestFakeKeyEvent(self.display, shift, 0, 0)
        self.sync()

    def sync(self):
        X11.XSync(self.display, 0)

    # What the server says

    def size(self):
        return self.rect(self.root)[2:]

    def rect(self, window):
        """Position on the screen and size, None if no such window is there to be seen."""
        attributes = WindowAttributes()
        if not X11.XGetWindowAttributes(self.display, window, byref(attributes)) \
                or attributes.map_state != VIEWABLE:
            return None
        x, y, child = c_int(), c_int(), c_ulong()
        if not X11.XTranslateCoordinates(self.display, window, self.root, 0, 0, byref(x), byref(y),
                                         byref(child)):
            return None
        return (x.value, y.value, attributes.width, attributes.height)

    def repeat_place(self, window):
        """Asks for a window to be where it is: the window manager then tells its owner where."""
        rect = self.rect(window)
        if rect:
            X11.XMoveWindow(self.display, window, rect[0], rect[1])
            self.sync()

    def open_window(self, rect):
        """A window of another application."""
        window = X11.XCreateWindow(self.display, self.root, *rect, 0, 0, INPUT_OUTPUT,
                                   None, 0, None)
        X11.XMapRaised(self.display, window)
        self.sync()
        return window

    def close_window(self, window):
        X11.XDestroyWindow(self.display, window)
        self.sync()

    def stacking(self, windows):
        """The windows from the lowest to the highest, by the frames around them."""
        order = self._tree(self.root)[1]
        return sorted(windows, key=lambda window: order.index(self._outermost(window)))

    def cursor(self):
        """The shape that is on the screen now: a key of GLYPHS, or something else."""
        return self.cursors.get(self._cursor_pixels(), "unknown")

    # Helpers

    def _tree(self, window):
        root, parent, children, count = c_ulong(), c_ulong(), POINTER(c_ulong)(), c_uint()
        X11.XQueryTree(self.display, window, byref(root), byref(parent), byref(children),
                       byref(count))
        windows = [children[i] for i in range(count.value)]
        if children:
            X11.XFree(children)
        return parent.value, windows

    def _outermost(self, window):
        while True:
            parent = self._tree(window)[0]
            if parent in (0, self.root):
                return window
            window = parent

    def _cursor_pixels(self):
        image = XFIXES.XFixesGetCursorImage(self.display)
        cursor = image.contents
        pixels = [cursor.pixels[i] & 0xffffffff for i in range(cursor.width * cursor.height)]
        appearance = (cursor.xhot, cursor.yhot, cursor.width, *pixels)
        X11.XFree(image)
        return appearance

    def _glyph_pixels(self, glyph):
        """Shows a glyph of the cursor font over the whole screen and reads it back."""
        attributes = Attributes(override_redirect=1)
        width, height = self.size()
        window = X11.XCreateWindow(self.display, self.root, 0, 0, width, height, 0, 0, INPUT_ONLY,
                                   None, OVERRIDE_REDIRECT, byref(attributes))
        X11.XDefineCursor(self.display, window, X11.XCreateFontCursor(self.display, glyph))
        X11.XMapRaised(self.display, window)
        self.sync()
        pixels = self._cursor_pixels()
        X11.XDestroyWindow(self.display, window)
        self.sync()
        return pixels
