"""A private desktop for driving the real program from outside: Xvfb on a free display, a
private session bus, the accessibility bus, an optional tray host, and the program over a
temporary XDG tree. Every process started here is ended by its PID when the desktop closes.

Nothing here sleeps for a fixed time: every wait is for a condition, polled.
"""

import os
import select
import shutil
import signal
import subprocess
import tempfile
import threading
import time


class TimedOut(AssertionError):
    pass


def wait_for(condition, timeout, what):
    """Polls `condition` until it gives something true; returns that, or fails after `timeout`
    seconds naming `what`."""
    deadline = time.monotonic() + timeout
    while True:
        result = condition()
        if result:
            return result
        if time.monotonic() > deadline:
            raise TimedOut("timed out waiting for " + what)
        time.sleep(0.02)


class Program:
    """A started program whose output lines are collected as they come."""

    def __init__(self, args, env):
        self.started = time.monotonic()
        self.process = subprocess.Popen(args, env=env, stdout=subprocess.PIPE,
                                        stderr=subprocess.STDOUT, text=True, bufsize=1)
        self.lines = []
        self._reader = threading.Thread(target=self._read, daemon=True)
        self._reader.start()

    def _read(self):
        for line in self.process.stdout:
            self.lines.append(line.rstrip("\n"))

    @property
    def pid(self):
        return self.process.pid

    def wait_for_line(self, text, timeout=20):
        return wait_for(lambda: text in self.lines, timeout, "the line " + repr(text))

    def wait_for_exit(self, timeout=20):
        try:
            return self.process.wait(timeout)
        except subprocess.TimeoutExpired:
            raise TimedOut("timed out waiting for the program to end")

    def stop(self):
        if self.process.poll() is None:
            self.process.terminate()
            try:
                self.process.wait(10)
            except subprocess.TimeoutExpired:
                self.process.kill()
                self.process.wait()


class Desktop:
    """Xvfb, buses and XDG tree; use as a context manager."""

    def __init__(self, width=1280, height=800):
        self.dir = tempfile.mkdtemp(prefix="vandorel-desktop-")
        self.size = (width, height)
        self._processes = []  # Popen objects, ended in reverse order
        self._pids = []  # forked daemons, ended in reverse order
        self.env = self._base_env()

    # Set-up ------------------------------------------------------------------------------

    def __enter__(self):
        try:
            self._start_display()
            self._start_session_bus()
            self._start_accessibility_bus()
        except BaseException:
            self.close()
            raise
        return self

    def __exit__(self, *exc):
        self.close()

    def _base_env(self):
        env = {key: value for key, value in os.environ.items()
               if not key.startswith(("XDG_", "DBUS_", "QT_", "AT_SPI"))
               and key not in ("DISPLAY", "WAYLAND_DISPLAY")}
        home = self.path("home")
        env.update({
            "HOME": home,
            "XDG_CONFIG_HOME": self.path("home/.config"),
            "XDG_DATA_HOME": self.path("home/.local/share"),
            "XDG_CACHE_HOME": self.path("home/.cache"),
            "XDG_CONFIG_DIRS": self.path("etc/xdg"),
            "XDG_DATA_DIRS": self.path("share"),
            "XDG_RUNTIME_DIR": self.path("runtime"),
            "DBUS_SYSTEM_BUS_ADDRESS": "unix:path=" + self.path("no-system-bus"),
            "LANG": "C.UTF-8",
            "LC_ALL": "C.UTF-8",
        })
        for key in ("HOME", "XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_CACHE_HOME",
                    "XDG_CONFIG_DIRS", "XDG_DATA_DIRS"):
            os.makedirs(env[key], exist_ok=True)
        os.makedirs(env["XDG_RUNTIME_DIR"], mode=0o700, exist_ok=True)
        return env

    def path(self, relative):
        return os.path.join(self.dir, relative)

    def _system_env(self):
        """The desktop's environment for the system's own daemons, which read their schemas
        and configuration from /usr/share."""
        env = dict(self.env)
        env["XDG_DATA_DIRS"] = "/usr/share"
        return env

    def _start_display(self):
        # -noreset: by default the server resets when its last client leaves (the
        # accessibility launcher, say), and refuses connections while it does.
        read_end, write_end = os.pipe()
        width, height = self.size
        self._processes.append(subprocess.Popen(
            ["Xvfb", "-displayfd", str(write_end), "-screen", "0", f"{width}x{height}x24",
             "-nolisten", "tcp", "-r", "-noreset"],
            pass_fds=(write_end,), stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL))
        os.close(write_end)
        number = b""
        deadline = time.monotonic() + 60
        while not number.endswith(b"\n"):
            ready, _, _ = select.select([read_end], [], [], max(0, deadline - time.monotonic()))
            if not ready:
                raise TimedOut("timed out waiting for Xvfb to name its display")
            chunk = os.read(read_end, 16)
            if not chunk:
                raise AssertionError("Xvfb ended without a display")
            number += chunk
        os.close(read_end)
        self.env["DISPLAY"] = ":" + number.decode().strip()

    def _start_session_bus(self):
        out = subprocess.run(["dbus-daemon", "--session", "--fork", "--print-address=1",
                              "--print-pid=1"], env=self._system_env(), capture_output=True,
                             text=True, timeout=20, check=True).stdout.split()
        self.env["DBUS_SESSION_BUS_ADDRESS"] = out[0]
        self._pids.append(int(out[1]))

    def _start_accessibility_bus(self):
        self._processes.append(subprocess.Popen(
            ["/usr/libexec/at-spi-bus-launcher", "--launch-immediately", "--a11y=1"],
            env=self._system_env(), stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL))
        wait_for(lambda: self.bus_name_has_owner("org.a11y.Bus"), 60, "the accessibility bus")

    def bus_name_has_owner(self, name):
        result = subprocess.run(
            ["gdbus", "call", "--session", "--dest", "org.freedesktop.DBus", "--object-path",
             "/org/freedesktop/DBus", "--method", "org.freedesktop.DBus.NameHasOwner", name],
            env=self.env, capture_output=True, text=True)
        return "true" in result.stdout

    def start_tray(self):
        """Starts the tray host and waits until it shows."""
        tray = subprocess.Popen(
            ["trayer", "--edge", "top", "--align", "right", "--widthtype", "request",
             "--height", "32", "--SetDockType", "true", "--transparent", "false"],
            env=self.env, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        self._processes.append(tray)

        def shown():
            if tray.poll() is not None:
                raise AssertionError("the tray host ended")
            return self.mapped_windows(tray.pid)
        wait_for(shown, 60, "the tray host")
        return tray

    def start_program(self, binary, args=(), env=None):
        program_env = dict(self.env)
        program_env.update({"QT_QPA_PLATFORM": "xcb", "QT_LINUX_ACCESSIBILITY_ALWAYS_ON": "1"})
        program_env.update(env or {})
        program = Program([binary, *args], program_env)
        self._processes.append(program.process)
        return program

    def close(self):
        for process in reversed(self._processes):
            if process.poll() is None:
                process.terminate()
                try:
                    process.wait(10)
                except subprocess.TimeoutExpired:
                    process.kill()
                    process.wait()
        for pid in reversed(self._pids):
            try:
                os.kill(pid, signal.SIGTERM)
            except ProcessLookupError:
                pass
        self._processes.clear()
        self._pids.clear()
        shutil.rmtree(self.dir, ignore_errors=True)

    # Files -------------------------------------------------------------------------------

    def write(self, relative, text, mode=0o644):
        full = self.path(relative)
        os.makedirs(os.path.dirname(full), exist_ok=True)
        with open(full, "w", encoding="utf-8") as out:
            out.write(text)
        os.chmod(full, mode)
        return full

    def application(self, desktop_id, name, mime_types):
        """A desktop entry whose program is a stub that does nothing."""
        stub = self.write("bin/" + desktop_id, "#!/bin/sh\nexit 0\n", 0o755)
        self.write(f"share/applications/{desktop_id}.desktop",
                   f"[Desktop Entry]\nType=Application\nName={name}\nExec={stub} %u\n"
                   f"MimeType={';'.join(mime_types)};\n")

    def defaults(self, handlers):
        """Makes the desktop IDs the defaults of their types."""
        lines = "".join(f"{mime}={desktop_id}.desktop\n" for mime, desktop_id in handlers.items())
        self.write("home/.config/mimeapps.list", "[Default Applications]\n" + lines)

    def settings(self, text):
        self.write("home/.config/io.kestrane.vandorel/settings.ini", text)

    # X ----------------------------------------------------------------------------------

    def x(self, *args):
        return subprocess.run(list(args), env=self.env, capture_output=True, text=True,
                              timeout=20).stdout

    def windows(self, pid):
        return [int(w) for w in self.x("xdotool", "search", "--pid", str(pid)).split()]

    def is_mapped(self, window):
        return "IsViewable" in self.x("xwininfo", "-id", str(window))

    def mapped_windows(self, pid):
        return [w for w in self.windows(pid) if self.is_mapped(w)]

    def is_embedded(self, window):
        """True when the window sits inside another program's window, not on the root."""
        parent = [line for line in self.x("xwininfo", "-children", "-id", str(window)).splitlines()
                  if "Parent window id" in line]
        return bool(parent) and "(the root window)" not in parent[0]

    def geometry(self, window):
        values = dict(line.split("=", 1) for line in
                      self.x("xdotool", "getwindowgeometry", "--shell", str(window)).split())
        return int(values["X"]), int(values["Y"]), int(values["WIDTH"]), int(values["HEIGHT"])

    def click(self, x, y, button=1):
        # No --sync: it never returns when the pointer is already there.
        self.x("xdotool", "mousemove", str(x), str(y), "click", str(button))

    def click_window(self, window, button=1):
        x, y, width, height = self.geometry(window)
        self.click(x + width // 2, y + height // 2, button)

    def key(self, *keys):
        self.x("xdotool", "key", *keys)

    def screenshot(self, path, crop=None):
        """The whole screen, or the part (x, y, width, height) of it."""
        args = ["import", "-window", "root"]
        if crop:
            x, y, width, height = crop
            args += ["-crop", f"{width}x{height}+{x}+{y}", "+repage"]
        subprocess.run(args + [path], env=self.env, check=True, timeout=20)
        return path
