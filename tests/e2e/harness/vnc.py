# SPDX-FileCopyrightText: 2026 Kavrondel
# SPDX-License-Identifier: MIT
"""A screen that is offered in a web browser, seen without one: RFB 3.8 (RFC 6143) through a web socket."""

import base64
import os
import socket
import struct

from cryptography.hazmat.primitives.ciphers import Cipher, algorithms, modes

from .waiting import DEADLINE

PASSWORD = 2
RAW = 0
BINARY = 2


class Refused(Exception):
    """The password is not the right one."""


class WebSocket:
    """As much of RFC 6455 as a screen needs: binary messages, each in one piece."""

    def __init__(self, port):
        self._socket = socket.create_connection(("127.0.0.1", port), DEADLINE)
        self._stream = self._socket.makefile("rb")
        self._text = b""
        key = base64.b64encode(os.urandom(16)).decode()
        self._socket.sendall((f"GET /websockify HTTP/1.1\r\nHost: 127.0.0.1:{port}\r\nUpgrade: websocket\r\n"
                              f"Connection: Upgrade\r\nSec-WebSocket-Key: {key}\r\nSec-WebSocket-Version: 13\r\n"
                              "Sec-WebSocket-Protocol: binary\r\n\r\n").encode())
        answer = self._stream.readline()
        if b" 101 " not in answer:
            raise AssertionError(f"no web socket: {answer!r}")
        while self._stream.readline().strip():
            pass

    def send(self, data):
        mask = os.urandom(4)
        masked = bytes(byte ^ mask[index % 4] for index, byte in enumerate(data))
        self._socket.sendall(struct.pack(">BB", 0x80 | BINARY, 0x80 | len(data)) + mask + masked)

    def receive(self, count):
        while len(self._text) < count:
            kind, length = struct.unpack(">BB", self._exactly(2))
            if length == 126:
                length, = struct.unpack(">H", self._exactly(2))
            elif length == 127:
                length, = struct.unpack(">Q", self._exactly(8))
            text = self._exactly(length)
            if kind & 0x0f == BINARY:
                self._text += text
        data, self._text = self._text[:count], self._text[count:]
        return data

    def _exactly(self, count):
        data = self._stream.read(count)
        if len(data) < count:
            raise EOFError("the web socket was closed")
        return data

    def close(self):
        self._stream.close()
        self._socket.close()


def _response(challenge, password):
    """The challenge by DES, as VNC does it: each byte of the key has its bits the other way round."""
    key = bytes(int(f"{byte:08b}"[::-1], 2) for byte in password.encode()[:8].ljust(8, b"\0"))
    encryptor = Cipher(algorithms.TripleDES(key * 3), modes.ECB()).encryptor()
    return encryptor.update(challenge) + encryptor.finalize()


class Screen:
    """The screen behind a port of 127.0.0.1, for one who knows the password."""

    def __init__(self, port, password):
        self._web = WebSocket(port)
        try:
            self._enter(password)
        except BaseException:
            self.close()
            raise

    def _enter(self, password):
        version = self._web.receive(12)
        if version != b"RFB 003.008\n":
            raise AssertionError(f"another protocol: {version!r}")
        self._web.send(version)
        self.ways_in = list(self._web.receive(self._web.receive(1)[0]))
        self._web.send(bytes([PASSWORD]))
        self._web.send(_response(self._web.receive(16), password))
        if self._number() != 0:
            raise Refused(self._web.receive(self._number()).decode())
        self._web.send(b"\1")
        self.size = struct.unpack(">HH", self._web.receive(4))
        self._depth = self._web.receive(16)[0] // 8
        self._web.receive(self._number())

    def _number(self):
        return struct.unpack(">I", self._web.receive(4))[0]

    def colours(self):
        """How many pixels of the whole screen have which value."""
        self._web.send(struct.pack(">BxHi", 2, 1, RAW))
        self._web.send(struct.pack(">BBHHHH", 3, 0, 0, 0, *self.size))
        counts, seen = {}, 0
        while seen < self.size[0] * self.size[1]:
            kind = self._web.receive(1)[0]
            if kind != 0:
                raise AssertionError(f"message {kind} instead of a picture")
            for _ in range(struct.unpack(">xH", self._web.receive(3))[0]):
                _, _, width, height, encoding = struct.unpack(">HHHHi", self._web.receive(12))
                if encoding != RAW:
                    raise AssertionError(f"encoding {encoding}")
                pixels = self._web.receive(width * height * self._depth)
                for index in range(0, len(pixels), self._depth):
                    value = pixels[index:index + self._depth]
                    counts[value] = counts.get(value, 0) + 1
                seen += width * height
        return counts

    def press(self, *keys):
        """Keys by their X numbers, all down and up again."""
        for key in keys:
            self._web.send(struct.pack(">BBxxI", 4, 1, key))
        for key in reversed(keys):
            self._web.send(struct.pack(">BBxxI", 4, 0, key))

    def close(self):
        self._web.close()
