"""What the application may ask of the kernel. Each rule returns the calls that break it."""

import re

OPENING = ("open", "openat", "openat2", "creat")
CHANGING = ("rename", "renameat", "renameat2", "unlink", "unlinkat", "rmdir", "mkdir", "mkdirat", "link", "linkat",
            "symlink", "symlinkat", "truncate", "ftruncate", "fallocate", "mknod", "mknodat", "chmod", "fchmod",
            "fchmodat", "chown", "fchown", "lchown", "fchownat", "setxattr")
LISTENING = ("listen", "accept", "accept4")
STARTING = ("execve", "execveat")
# Calls that make descriptors which a started program inherits: none of them has a way to say otherwise.
INHERITED = ("creat", "pipe", "eventfd", "epoll_create", "inotify_init", "dup", "dup2")
MAKING = (*OPENING, *INHERITED, "memfd_create", "socket", "socketpair", "pipe2", "eventfd2", "epoll_create1",
          "inotify_init1", "timerfd_create", "signalfd4", "dup3")
# Read without O_CLOEXEC by the C library (the table of character sets), the X library (locales, the
# pointer's picture) and the letters' library. All are files that anybody may read.
READ_BY_LIBRARIES = re.compile(r"/usr/(lib/[^/]+/gconv/gconv-modules\.cache|share/X11/locale/.*|share/fonts/.*|"
                               r"share/icons/.*)$")


def opens_devices_beside(calls, node):
    """Also in vain: nothing below /dev is even tried but the keyboard's configuration interface, and /dev/null, into
    which the complaints of a picture's library go."""
    return [call for call in calls if call.name in OPENING
            and any(path.startswith("/dev/") and path not in (node, "/dev/null") for path in call.paths)]


def changes_files_beside(calls, allowed):
    """`allowed` matches the paths that it may create, write, rename or remove."""
    return [call for call in calls if call.succeeded and (call.name in CHANGING or opens_for_writing(call))
            and not all(allowed.match(path) for path in changed_by(call))]


def opens_for_writing(call):
    is_device = call.opened.startswith("/dev/")
    return call.name in OPENING and not is_device and bool(re.search("O_WRONLY|O_RDWR|O_CREAT|O_TRUNC", call.arguments))


def changed_by(call):
    """The paths; of a call that only names a descriptor, what that stands for."""
    named = [path for path in call.paths if not path.startswith("/proc/self/fd/")]
    return named or re.findall(r"<([^>]*)>", call.arguments)


def talks_to_networks(calls):
    """Sockets other than those to the screen and the desktop's bus, and the one where the device manager tells."""
    return [call for call in calls if call.name in ("socket", "socketpair") and "AF_UNIX" not in call.arguments
            and "AF_NETLINK" not in call.arguments]


def lets_others_in(calls):
    return [call for call in calls if call.name in LISTENING
            or (call.name == "bind" and "sa_family=AF_NETLINK" not in call.arguments)]


def hands_descriptors_on(calls):
    """Made without close-on-exec."""
    def is_handed_on(call):
        if call.name == "fcntl":
            return ", F_DUPFD," in call.arguments
        if re.search(r", 2(<.*>)?$", call.arguments) and call.name == "dup2":
            return False  # standard error itself, turned away for a moment and back
        is_read_by_library = "O_RDONLY" in call.arguments and any(map(READ_BY_LIBRARIES.match, call.paths))
        return call.name in MAKING and "CLOEXEC" not in call.arguments and not is_read_by_library

    return [call for call in calls if call.succeeded and is_handed_on(call)]


def starts_programs(calls):
    return [call for call in calls if call.name in STARTING][1:]  # the first is its own start
