"""The kernel's hidraw nodes: which belong to a keyboard, whose they are, who has them open."""

import fcntl
import glob
import os
import stat
import subprocess

TYPING = "typing"
CONFIGURATION = "configuration"
FEATURE_REPORT_ID_6 = b"\x85\x06"


def nodes():
    """{"typing": "/dev/hidrawN", "configuration": "/dev/hidrawM"}, as far as they are there."""
    found = {}
    for folder in glob.glob("/sys/class/hidraw/hidraw*"):
        try:
            with open(f"{folder}/device/report_descriptor", "rb") as descriptor:
                kind = CONFIGURATION if FEATURE_REPORT_ID_6 in descriptor.read() else TYPING
        except OSError:
            continue  # unplugged in this very moment
        found[kind] = "/dev/" + os.path.basename(folder)
    return found


def count():
    """How many nodes there are, whosever they are."""
    return len(glob.glob("/sys/class/hidraw/hidraw*"))


def settled():
    """The nodes once the device manager has dealt with them, else none."""
    there = nodes()
    return there if len(there) == 2 and all(is_known(node) for node in there.values()) else {}


def is_known(node):
    try:
        number = os.stat(node).st_rdev
    except FileNotFoundError:
        return False  # sysfs knows it a moment before the node is there
    return os.path.exists(f"/run/udev/data/c{os.major(number)}:{os.minor(number)}")


def tags(node):
    return set(known("CURRENT_TAGS", node).strip(":").split(":")) - {""}


def known(name, node):
    """A property that the device manager keeps of the node; empty when it has none of that name."""
    return subprocess.run(["udevadm", "info", "--query=property", f"--property={name}", "--value", node],
                          capture_output=True, text=True, check=True).stdout.strip()


def owner_and_mode(node):
    state = os.stat(node)
    return state.st_uid, stat.S_IMODE(state.st_mode)


def send_feature(node, report):
    """Sends a feature report as any program could. Returns the error number, 0 for none."""
    set_feature = 0xC0000000 | len(report) << 16 | ord("H") << 8 | 0x06
    descriptor = os.open(node, os.O_RDWR | os.O_CLOEXEC)
    try:
        fcntl.ioctl(descriptor, set_feature, report)
    except OSError as error:
        return error.errno
    finally:
        os.close(descriptor)
    return 0


def opened_by(pid):
    """The nodes that a process has open."""
    opened = set()
    for link in glob.glob(f"/proc/{pid}/fd/*"):
        try:
            target = os.readlink(link)
        except OSError:
            continue  # closed in this very moment
        if target.startswith("/dev/hidraw"):
            opened.add(target.removesuffix(" (deleted)"))
    return opened
