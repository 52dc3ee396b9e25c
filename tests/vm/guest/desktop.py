"""What an application finds on a desk: a user, a screen, a session bus with the accessibility services behind it."""

import os
import pwd
import select
import subprocess

USER = "nobody"


def become_user():
    """For good: root stays behind in the programs started before."""
    account = pwd.getpwnam(USER)
    home = "/run/lumo-home"
    for folder in (home, f"{home}/runtime"):
        os.makedirs(folder, mode=0o700, exist_ok=True)
        os.chown(folder, account.pw_uid, account.pw_gid)
    os.setgroups([])
    os.setgid(account.pw_gid)
    os.setuid(account.pw_uid)
    os.environ.update(HOME=home, XDG_RUNTIME_DIR=f"{home}/runtime", USER=USER, LOGNAME=USER)


def start_screen():
    """The server picks a free number and tells it once it accepts connections."""
    reader, writer = os.pipe()
    subprocess.Popen(["Xvfb", "-displayfd", str(writer), "-noreset", "-screen", "0", "1280x1024x24", "-nolisten", "tcp"],
                     pass_fds=[writer], stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
    os.close(writer)
    os.environ["DISPLAY"] = ":" + read_line(reader, "the screen")


def start_session_bus():
    reader, writer = os.pipe()
    subprocess.Popen(["dbus-daemon", "--session", "--nofork", f"--print-address={writer}"],
                     pass_fds=[writer], stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
    os.close(writer)
    os.environ["DBUS_SESSION_BUS_ADDRESS"] = read_line(reader, "the session bus")
    os.environ["GSETTINGS_BACKEND"] = "memory"


def read_line(descriptor, whose):
    ready, _, _ = select.select([descriptor], [], [], 120)
    if not ready:
        raise TimeoutError(f"{whose} did not start")
    with os.fdopen(descriptor) as pipe:
        return pipe.readline().strip()
