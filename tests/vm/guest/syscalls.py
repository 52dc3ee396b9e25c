"""What the application asks of the kernel, as strace writes it down: one file for each of its threads."""

import glob
import re

CALLS = ("open", "openat", "openat2", "creat", "memfd_create", "socket", "socketpair", "bind", "listen", "accept",
         "accept4", "connect", "pipe", "pipe2", "eventfd", "eventfd2", "epoll_create", "epoll_create1", "inotify_init",
         "inotify_init1", "timerfd_create", "signalfd4", "dup", "dup2", "dup3", "fcntl", "rename", "renameat",
         "renameat2", "unlink", "unlinkat", "rmdir", "mkdir", "mkdirat", "link", "linkat", "symlink", "symlinkat",
         "truncate", "ftruncate", "fallocate", "mknod", "mknodat", "chmod", "fchmod", "fchmodat", "chown", "fchown",
         "lchown", "fchownat", "setxattr", "execve", "execveat")
LINE = re.compile(r"(\w+)\((.*)\) += (-?\d+|\?)(.*)")
TEXT = re.compile(r'"((?:[^"\\]|\\.)*)"')


class Log:
    def __init__(self, path):
        self._path = path
        # The program stays our own child, and only the calls named above stop it.
        self.command = ["strace", "-D", "-f", "--seccomp-bpf", "-ff", "-y", "-o", path,
                        "-e", "trace=" + ",".join(CALLS)]

    def is_complete(self):
        """True once every thread's end is in its file."""
        texts = self._texts()
        return bool(texts) and all(text.rstrip("\n").split("\n")[-1].startswith("+++ ") for text in texts)

    def calls(self):
        return [call for text in self._texts() for call in calls_in(text)]

    def _texts(self):
        texts = []
        for path in sorted(glob.glob(f"{self._path}.*")):
            with open(path, encoding="utf-8", errors="replace") as file:
                texts.append(file.read())
        return texts


class Call:
    def __init__(self, line, name, arguments, result, told):
        self.line = line
        self.name = name
        self.arguments = arguments
        self.succeeded = result.isdigit()
        self.paths = TEXT.findall(arguments)
        self.opened = told.strip().removeprefix("<").removesuffix(">")  # what a descriptor stands for

    def __repr__(self):
        return self.line


def calls_in(text):
    return [Call(line, *found.groups()) for line in text.split("\n") if (found := LINE.match(line))]
