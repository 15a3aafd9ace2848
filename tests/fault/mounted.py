#!/usr/bin/python3
# SPDX-FileCopyrightText: 2026 Kavrondel
# SPDX-License-Identifier: MIT
"""mounted.py KIND COMMAND...: runs the command with a fresh file system of that kind at $ORVANTO_MOUNT.

The mount lives in a namespace of its own and goes with it, and so does every process, whatever happens. Where the
machine does not allow such a mount, that is said, and the exit code is that of a skipped test. A tool that is missing
is a failure: tools/packages.sh names its package.
"""

import os
import pathlib
import subprocess
import sys
import tempfile
import time

SKIPPED = 77


class NotAllowed(Exception):
    """The machine does not allow the mount."""


def tool(*command):
    """What has to work everywhere."""
    subprocess.run(command, check=True, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)


def attempt(*command):
    """What a machine may refuse."""
    result = subprocess.run(command, check=False, capture_output=True, text=True)
    if result.returncode != 0:
        raise NotAllowed(" ".join(result.stderr.split()))
    return result.stdout.strip()


def image(folder, megabytes, *make):
    path = folder / "image"
    with path.open("wb") as file:
        file.truncate(megabytes << 20)
    tool(*make, path)
    return path


def start_daemon(folder, mount, *command):
    """A file system that is a program; it stays in the foreground, so that its process is known."""
    messages = folder / "messages"
    with messages.open("wb") as output:
        daemon = subprocess.Popen(command, stdout=output, stderr=output)  # ends with the namespace
    while not os.path.ismount(mount):
        if daemon.poll() is not None:
            raise NotAllowed(" ".join(messages.read_text(errors="replace").split()))
        time.sleep(0.01)
    os.environ["ORVANTO_MOUNT_DAEMON"] = str(daemon.pid)


def mount_tmpfs(folder, mount):
    del folder
    attempt("mount", "-t", "tmpfs", "-o", "size=4m", "none", mount)
    return mount


def mount_ext4(folder, mount):
    attempt("mount", "-o", "loop", image(folder, 16, "mkfs.ext4", "-q"), mount)
    return mount


def mount_casefold(folder, mount):
    made = image(folder, 16, "mkfs.ext4", "-q", "-O", "casefold", "-E", "encoding=utf8")
    attempt("mount", "-o", "loop", made, mount)
    inside = mount / "casefold"
    inside.mkdir()
    attempt("chattr", "+F", inside)
    return inside


def mount_vfat(folder, mount):
    attempt("mount", "-t", "vfat", "-o", "loop,utf8", image(folder, 16, "mkfs.vfat"), mount)
    return mount


def mount_ntfs(folder, mount):
    made = image(folder, 16, "mkfs.ntfs", "-q", "-F")
    os.environ["ORVANTO_MOUNT_IMAGE"] = str(made)
    start_daemon(folder, mount, "lowntfs-3g", "-o", "no_detach,ignore_case,windows_names", made, mount)
    return mount


def mount_exfat(folder, mount):
    device = attempt("losetup", "--find", "--show", image(folder, 16, "mkfs.exfat"))
    try:
        start_daemon(folder, mount, "mount.exfat-fuse", "-d", device, mount)
    finally:
        # As soon as nothing uses it any more.
        tool("losetup", "--detach", device)
    return mount


KINDS = {name[len("mount_"):]: function for name, function in globals().items() if name.startswith("mount_")}


def inside_main(kind, folder, command):
    mount = folder / "mount"
    mount.mkdir()
    try:
        os.environ["ORVANTO_MOUNT"] = str(KINDS[kind](folder, mount))
    except NotAllowed as reason:
        print(f"skipped: this machine allows no {kind} mount: {reason}", flush=True)
        return SKIPPED
    os.environ["ORVANTO_MOUNT_KIND"] = kind
    return subprocess.run(command, check=False).returncode


def outside_main(kind, command):
    namespace = ["unshare", "--mount", "--propagation", "private", "--pid", "--fork", "--kill-child",
                 "--mount-proc"]
    if os.geteuid() != 0:
        namespace += ["--user", "--map-root-user"]
    refused = subprocess.run([*namespace, "true"], check=False, capture_output=True, text=True)
    if refused.returncode != 0:
        print(f"skipped: this machine allows no mounts: {refused.stderr.strip()}", flush=True)
        return SKIPPED
    memory = "/dev/shm" if os.access("/dev/shm", os.W_OK) else None
    with tempfile.TemporaryDirectory(prefix="orvanto-test-", dir=memory) as folder:
        return subprocess.run([*namespace, sys.executable, __file__, "--inside", folder, kind, *command],
                              check=False).returncode


# Where the makers of file systems are; not everyone's path leads there.
os.environ["PATH"] += ":/usr/sbin:/sbin"
if sys.argv[1] == "--inside":
    sys.exit(inside_main(sys.argv[3], pathlib.Path(sys.argv[2]), sys.argv[4:]))
sys.exit(outside_main(sys.argv[1], sys.argv[2:]))
