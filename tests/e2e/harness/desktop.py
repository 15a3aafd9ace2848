# SPDX-FileCopyrightText: 2026 Kavrondel
# SPDX-License-Identifier: MIT
"""A desktop of the tests' own: X server, session bus, accessibility bus, window manager, tray."""

import ctypes
import os
import pathlib
import shutil
import signal
import subprocess
import tempfile

from gi.repository import Gio, GLib

from .waiting import DEADLINE, until

READY = "_ORVANTO_E2E_READY"
PR_SET_PDEATHSIG = 1
PR_SET_CHILD_SUBREAPER = 36
_libc = ctypes.CDLL(None, use_errno=True)
_x11 = ctypes.CDLL("libX11.so.6")
_x11.XOpenDisplay.restype = ctypes.c_void_p
_x11.XOpenDisplay.argtypes = [ctypes.c_char_p]
_x11.XCloseDisplay.argtypes = [ctypes.c_void_p]
_x11.XInternAtom.restype = ctypes.c_ulong
_x11.XInternAtom.argtypes = [ctypes.c_void_p, ctypes.c_char_p, ctypes.c_int]
_x11.XGetSelectionOwner.restype = ctypes.c_ulong
_x11.XGetSelectionOwner.argtypes = [ctypes.c_void_p, ctypes.c_ulong]
PASSED_ON = ("PATH", "ASAN_OPTIONS", "UBSAN_OPTIONS", "LSAN_OPTIONS", "TMPDIR", "LD_LIBRARY_PATH")


def _die_with_parent():
    _libc.prctl(PR_SET_PDEATHSIG, signal.SIGKILL)


def _children_of(pid):
    for entry in pathlib.Path("/proc").iterdir():
        if not entry.name.isdigit():
            continue
        try:
            stat = (entry / "stat").read_text(errors="replace")
        except OSError:
            continue
        if int(stat.rpartition(")")[2].split()[1]) == pid:
            yield int(entry.name)


class Desktop:
    """One X server with everything a desktop session needs; stop() leaves neither process nor file behind."""

    def __init__(self, window_manager=True, tray=False, screen="1280x800x24"):
        self.folder = pathlib.Path(tempfile.mkdtemp(prefix="orvanto-e2e-"))
        self._processes = []
        # What the started programs leave behind (services of the buses) becomes a child of this process.
        _libc.prctl(PR_SET_CHILD_SUBREAPER, 1)
        try:
            self._start(window_manager, tray, screen)
        except BaseException:
            self.stop()
            raise

    def _start(self, window_manager, tray, screen):
        self.env = {name: os.environ[name] for name in PASSED_ON if name in os.environ}
        for variable, name in (("HOME", "home"), ("XDG_RUNTIME_DIR", "run"), ("XDG_CACHE_HOME", "cache")):
            (self.folder / name).mkdir(mode=0o700)
            self.env[variable] = str(self.folder / name)
        self.env["LC_ALL"] = "C.UTF-8"
        self.env["DISPLAY"] = self._start_x_server(screen)
        self._start_buses()
        if window_manager:
            # A window that comes before the window manager has taken over is never given the focus.
            self.spawn(["openbox", "--startup", f"xprop -root -format {READY} 8s -set {READY} yes"])
            until(self._window_manager_runs, "the window manager")
        if tray:
            self.start_tray()

    def _start_x_server(self, screen):
        reading, writing = os.pipe()
        self.spawn(["Xvfb", "-displayfd", str(writing), "-screen", "0", screen, "-nolisten", "tcp", "-noreset"],
                   pass_fds=[writing])
        os.close(writing)
        with open(reading, encoding="ascii") as pipe:
            number = pipe.readline().strip()
        if not number:
            raise AssertionError("the X server did not start")
        return f":{number}"

    def _start_buses(self):
        address = f"unix:path={self.folder}/run/bus"
        reading, writing = os.pipe()
        self.spawn(["dbus-daemon", "--session", "--nofork", "--nopidfile", f"--address={address}",
                    f"--print-address={writing}"], pass_fds=[writing])
        os.close(writing)
        with open(reading, encoding="ascii") as pipe:
            self.env["DBUS_SESSION_BUS_ADDRESS"] = pipe.readline().strip()
        session = self._connect(self.env["DBUS_SESSION_BUS_ADDRESS"])
        answer = session.call_sync("org.a11y.Bus", "/org/a11y/bus", "org.a11y.Bus", "GetAddress", None,
                                   GLib.VariantType("(s)"), 0, int(DEADLINE * 1000), None)
        self.accessibility = self._connect(answer[0])
        session.close_sync()

    @staticmethod
    def _connect(address):
        flags = (Gio.DBusConnectionFlags.AUTHENTICATION_CLIENT |
                 Gio.DBusConnectionFlags.MESSAGE_BUS_CONNECTION)
        connection = Gio.DBusConnection.new_for_address_sync(address, flags, None, None)
        connection.set_exit_on_close(False)
        return connection

    def _window_manager_runs(self):
        return '= "yes"' in self.run("xprop", "-root", READY)

    def start_tray(self):
        self._tray = self.spawn(["trayer", "--edge", "bottom", "--align", "right", "--widthtype", "request",
                                 "--expand", "true"])
        until(self._tray_runs, "the tray")

    def stop_tray(self):
        """Ends the tray at once, as a crash does."""
        self.kill(self._tray)
        self._processes.remove(self._tray)
        until(lambda: not self._tray_runs(), "the tray to go")

    def _tray_runs(self):
        """Whether programs would find a tray."""
        display = _x11.XOpenDisplay(self.env["DISPLAY"].encode())
        try:
            return _x11.XGetSelectionOwner(display, _x11.XInternAtom(display, b"_NET_SYSTEM_TRAY_S0", False)) != 0
        finally:
            _x11.XCloseDisplay(display)

    def spawn(self, command, **options):
        """Starts a process that ends with this desktop, in a process group of its own."""
        options.setdefault("env", self.env)
        options.setdefault("stdin", subprocess.DEVNULL)
        options.setdefault("stdout", subprocess.DEVNULL)
        options.setdefault("stderr", subprocess.DEVNULL)
        process = subprocess.Popen(command, start_new_session=True, preexec_fn=_die_with_parent, **options)
        self._processes.append(process)
        return process

    def run(self, *command):
        """Runs one short command on this desktop and returns what it printed."""
        return subprocess.run(command, env=self.env, stdin=subprocess.DEVNULL, capture_output=True, text=True,
                              timeout=DEADLINE, check=False).stdout

    def ended(self):
        """The processes that have ended by themselves: command and exit code, negative for a signal."""
        return [(process.args[0], process.returncode) for process in self._processes if process.poll() is not None]

    def screenshot(self, file):
        file.parent.mkdir(parents=True, exist_ok=True)
        self.run("import", "-window", "root", str(file))

    def stop(self):
        if getattr(self, "accessibility", None) and not self.accessibility.is_closed():
            self.accessibility.close_sync()
        for process in reversed(self._processes):
            self.kill(process)
        self._processes.clear()
        self._kill_orphans()
        shutil.rmtree(self.folder, ignore_errors=True)

    @staticmethod
    def kill(process):
        """Ends a process with its whole group, at once."""
        if process.returncode is None:
            try:
                os.killpg(process.pid, signal.SIGKILL)
            except ProcessLookupError:
                pass
            process.wait()

    @staticmethod
    def _kill_orphans():
        while True:
            orphans = list(_children_of(os.getpid()))
            if not orphans:
                return
            for pid in orphans:
                try:
                    os.kill(pid, signal.SIGKILL)
                    os.waitpid(pid, 0)
                except (ProcessLookupError, ChildProcessError):
                    pass
