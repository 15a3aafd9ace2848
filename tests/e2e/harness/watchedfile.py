# SPDX-FileCopyrightText: 2026 Kavrondel
# SPDX-License-Identifier: MIT
"""A file that is watched while it is replaced."""

import threading


class WatchedFile:
    """Reads a file over and over while it is replaced, and keeps what it saw."""

    def __init__(self, file):
        self._file, self.contents, self._stop = file, set(), threading.Event()
        self._thread = threading.Thread(target=self._read, daemon=True)
        self._thread.start()

    def _read(self):
        while not self._stop.is_set():
            try:
                self.contents.add(self._file.read_bytes())
            except FileNotFoundError:
                self.contents.add(None)

    def stop(self):
        self._stop.set()
        self._thread.join()
        return self.contents
