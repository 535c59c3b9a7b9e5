"""The screen of Qt's vnc platform, a framebuffer without window system, as a remote user has it."""

import socket
import struct
import time

NAMED_KEYS = {"\t": 0xff09}
BUTTONS = {"left": 1, "middle": 2, "right": 4}
CONNECT_SECONDS = 20


class VncDisplay:
    def __init__(self, port):
        self.socket = self._connect(port)
        version = self._read(12)
        if not version.startswith(b"RFB "):
            raise RuntimeError("no RFB server: %r" % version)
        self.socket.sendall(b"RFB 003.003\n")
        security, = struct.unpack(">I", self._read(4))
        if security != 1:
            raise RuntimeError("security type %d instead of none" % security)
        self.socket.sendall(b"\1")
        self._size = struct.unpack(">HH", self._read(4))
        self._read(16)
        self._read(struct.unpack(">I", self._read(4))[0])
        self.position = (0, 0)
        self.held = 0

    def move(self, x, y):
        self.position = (x, y)
        self._send_pointer()

    def press(self, button="left"):
        self.held |= BUTTONS[button]
        self._send_pointer()

    def release(self, button="left"):
        self.held &= ~BUTTONS[button]
        self._send_pointer()

    def type(self, text):
        for character in text:
            keysym = NAMED_KEYS.get(character, ord(character))
            for down in (1, 0):
                self.socket.sendall(struct.pack(">BBxxI", 4, down, keysym))

    def size(self):
        return self._size

    def _connect(self, port):
        deadline = time.monotonic() + CONNECT_SECONDS
        while True:
            try:
                connection = socket.create_connection(("127.0.0.1", port), CONNECT_SECONDS)
                connection.settimeout(CONNECT_SECONDS)
                connection.setsockopt(socket.IPPROTO_TCP, socket.TCP_NODELAY, 1)
                return connection
            except ConnectionRefusedError:
                if time.monotonic() > deadline:
                    raise
                time.sleep(0.02)

    def _read(self, count):
        data = b""
        while len(data) < count:
            part = self.socket.recv(count - len(data))
            if not part:
                raise RuntimeError("the RFB server has closed the connection")
            data += part
        return data

    def _send_pointer(self):
        self.socket.sendall(struct.pack(">BBHH", 5, self.held, *self.position))
