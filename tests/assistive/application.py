"""The application as an ordinary process of an ordinary user."""

import os
import subprocess


class Application:
    def __init__(self, program, console, *, arguments=(), environment=None, watched_by=()):
        """`watched_by`: a command before the program, which becomes the program itself."""
        self._console = console
        wanted = {"QT_QPA_PLATFORM": "xcb", "QT_LINUX_ACCESSIBILITY_ALWAYS_ON": "1", **(environment or {})}
        with open(console, "wb") as output:
            self._process = subprocess.Popen([*watched_by, program, *arguments], env=dict(os.environ, **wanted),
                                             stdin=subprocess.DEVNULL, stdout=output, stderr=subprocess.STDOUT)

    @property
    def pid(self):
        return self._process.pid

    def console_lines(self):
        with open(self._console, encoding="utf-8", errors="replace") as console:
            return console.read().splitlines()

    def ended(self):
        """The exit status, absent while it runs."""
        return self._process.poll()

    def is_inside_an_exchange(self):
        """True while one of its threads stands in the system call that carries a feature report."""
        return any(is_feature_report(self._system_call_of(task)) for task in self._tasks())

    def _tasks(self):
        try:
            return os.listdir(f"/proc/{self.pid}/task")
        except FileNotFoundError:
            return []

    def _system_call_of(self, task):
        try:
            with open(f"/proc/{self.pid}/task/{task}/syscall", encoding="ascii") as call:
                return call.read()
        except OSError:
            return ""

    def windows(self):
        """Its visible windows with the title that the window has, as the screen counts them."""
        found = subprocess.run(["xdotool", "search", "--all", "--onlyvisible", "--pid", str(self.pid), "--name",
                                "^Vexa Lumo 65$"], capture_output=True, text=True, timeout=120, check=False)
        return found.stdout.split()

    def focus(self):
        """Nobody here hands out the focus but us."""
        subprocess.run(["xdotool", "windowfocus", "--sync", self.windows()[0]], timeout=120, check=True)

    def stop(self):
        """The end of a chapter: also for an application that should have ended long before."""
        if self.ended() is None:
            self._process.kill()
            self._process.wait()


def is_feature_report(system_call):
    """`system_call` as /proc tells it: number, descriptor, request … or that the thread is not inside one."""
    ioctl, set_feature, get_feature = "16", 0x4806, 0x4807
    fields = system_call.split()
    return fields[:1] == [ioctl] and int(fields[2], 16) & 0xFFFF in (set_feature, get_feature)
