"""A private desktop for one run: an X display in memory, a window manager and a session bus with accessibility.

Nothing of the desktop of the person at the machine is used or disturbed, and everything ends with this process,
however it ends.
"""

import ctypes
import os
import shutil
import signal
import struct
import subprocess
import tempfile
import time
import zlib

OPENBOX = os.path.join(os.path.dirname(__file__), "../../tools/commands/openbox.xml")
PR_SET_PDEATHSIG, PR_SET_CHILD_SUBREAPER = 1, 36
_libc = ctypes.CDLL(None)


class Missing(AssertionError):
    """What a journey waited for did not come."""


def until(condition, what, limit=15.0):
    """Waits until condition() gives something true and returns it."""
    end = time.monotonic() + limit
    while True:
        found = condition()
        if found:
            return found
        if time.monotonic() > end:
            raise Missing(f"waited {limit:g} s in vain: {what() if callable(what) else what}")
        time.sleep(0.02)


def _die_with_parent():
    _libc.prctl(PR_SET_PDEATHSIG, signal.SIGKILL)


class Desktop:
    def __init__(self, width=1024, height=768):
        self.folder = tempfile.mkdtemp(prefix="journey-")
        self.width, self.height = width, height
        self.processes = []
        # Services that the session bus starts would outlive it as orphans; so they become ours and are ended too.
        _libc.prctl(PR_SET_CHILD_SUBREAPER, 1)
        keep = ("PATH", "ASAN_OPTIONS", "UBSAN_OPTIONS", "LD_LIBRARY_PATH")
        self.environment = {name: os.environ[name] for name in keep if name in os.environ}
        self.environment.update(HOME=self.folder, LANG="C.UTF-8", GSETTINGS_BACKEND="memory", NO_AT_BRIDGE="1")
        for name in ("XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_CACHE_HOME", "XDG_RUNTIME_DIR"):
            self.environment[name] = os.path.join(self.folder, name.lower())
            os.mkdir(self.environment[name], 0o700)
        try:
            self._start()
        except BaseException:
            self.close()
            raise

    def _start(self):
        # A display of its own number is still open to everybody who takes that number for theirs, so it has a key. A
        # key held down does not repeat: on a busy machine it may stay down for long.
        self._write_key()
        number = self._start_and_read(
            ["Xvfb", "-displayfd", "{}", "-screen", "0", f"{self.width}x{self.height}x24", "-nolisten", "tcp",
             "-noreset", "-r", "-auth", self.environment["XAUTHORITY"], "-fbdir", self.folder])
        self.environment["DISPLAY"] = f":{number}"
        self.environment["DBUS_SESSION_BUS_ADDRESS"] = self._start_and_read(
            ["dbus-daemon", "--session", "--nofork", "--nopidfile", "--print-address={}",
             f"--address=unix:path={self.folder}/bus"])
        self.spawn(["openbox", "--config-file", OPENBOX], "openbox")
        # A window that appears before the window manager may never get the focus.
        until(self._manager_answers, "the window manager")
        os.environ.update(self.environment)

    def _write_key(self):
        """Writes a random key, good for any display, in the form of Xau files: length and bytes of each field."""
        self.environment["XAUTHORITY"] = os.path.join(self.folder, "key")
        fields = [b"", b"", b"MIT-MAGIC-COOKIE-1", os.urandom(16)]
        any_address = 65535
        with open(self.environment["XAUTHORITY"], "wb") as file:
            file.write(struct.pack(">H", any_address)
                       + b"".join(struct.pack(">H", len(field)) + field for field in fields))

    def _manager_answers(self):
        return "0x" in self.output(["xprop", "-root", "_NET_SUPPORTING_WM_CHECK"])

    def spawn(self, command, name, **options):
        """Starts a process that ends with this one; its output goes to the file <name>.log of the folder."""
        with open(os.path.join(self.folder, name + ".log"), "ab") as log:
            process = subprocess.Popen(command, env={**self.environment, **options.pop("env", {})}, stdout=log,
                                       stderr=log, stdin=subprocess.DEVNULL, preexec_fn=_die_with_parent, **options)
        self.processes.append(process)
        return process

    def _start_and_read(self, command):
        """Starts a server that writes one line to the descriptor which stands for {} in its command."""
        reading, writing = os.pipe()
        self.spawn([part.format(writing) for part in command], command[0], pass_fds=[writing])
        os.close(writing)
        with os.fdopen(reading) as answer:
            line = answer.readline().strip()
        if not line:
            raise RuntimeError(f"{command[0]} did not start: {self.log(command[0])}")
        return line

    def log(self, name):
        try:
            with open(os.path.join(self.folder, name + ".log"), encoding="utf-8", errors="replace") as log:
                return log.read()
        except FileNotFoundError:
            return ""

    def output(self, command):
        done = subprocess.run(command, env=self.environment, capture_output=True, text=True, timeout=20)
        return done.stdout.strip() if done.returncode == 0 else ""

    def xdotool(self, *arguments, check=True):
        done = subprocess.run(["xdotool", *map(str, arguments)], env=self.environment, capture_output=True, text=True,
                              timeout=30)
        if check and done.returncode:
            raise RuntimeError(f"xdotool {arguments}: {done.stderr}")
        return done.stdout.strip()

    def screenshot(self, path):
        """Writes the screen as a PNG file."""
        # The display keeps a header and rows of blue, green, red and an unused byte a pixel.
        with open(os.path.join(self.folder, "Xvfb_screen0"), "rb") as file:
            data = file.read()
        header = struct.unpack(">25I", data[:100])
        start, stride, width, height = header[0] + header[19] * 12, header[12], header[4], header[5]
        lines = bytearray()
        for at in range(start, start + stride * height, stride):
            line = bytearray(width * 3)
            line[0::3], line[1::3], line[2::3] = (data[at + part:at + width * 4:4] for part in (2, 1, 0))
            lines += b"\0" + line

        def chunk(kind, data):
            return struct.pack(">I", len(data)) + kind + data + struct.pack(">I", zlib.crc32(kind + data))

        with open(path, "wb") as file:
            file.write(b"\x89PNG\r\n\x1a\n" + chunk(b"IHDR", struct.pack(">2I5B", width, height, 8, 2, 0, 0, 0))
                       + chunk(b"IDAT", zlib.compress(lines, 6)) + chunk(b"IEND", b""))

    def close(self):
        for process in reversed(self.processes):
            process.kill()
            process.wait()
        self._end_orphans()
        shutil.rmtree(self.folder, ignore_errors=True)

    def _end_orphans(self):
        """Ends what the session bus had started, which is by now among this process's children."""
        end = time.monotonic() + 5
        while time.monotonic() < end:
            with open(f"/proc/self/task/{os.getpid()}/children", encoding="ascii") as file:
                children = [int(pid) for pid in file.read().split()]
            if not children:
                return
            for pid in children:
                os.kill(pid, signal.SIGKILL)
                os.waitpid(pid, 0)
