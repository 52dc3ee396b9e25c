"""The rights that the running application makes use of, seen by strace through a short story."""

import os
import re

import deeds
import hidraw
import rights
import stories
import syscalls

# How the preferences are written: a lock beside them, a file without a name that becomes them, and the folder.
PREFERENCES = r"/\.config(/vexa-lumo-65(/preferences\.ini(\.lock|\.[A-Za-z0-9]{6})?|/#\d+)?)?$"


def tell(checks, window, application, keyboard, log):
    every_rule_sees_its_breach(checks)
    nodes = lives(checks, window, application, keyboard)
    checks.eventually("the log is complete", log.is_complete, bool)
    calls = log.calls()
    opened = {path for call in calls if call.name in rights.OPENING for path in call.paths
              if path.startswith("/dev/hidraw")}
    checks.equal("of all hidraw nodes it opens the configuration interface", opened, {nodes[hidraw.CONFIGURATION]})
    checks.equal("nor tries any other device", rights.opens_devices_beside(calls, nodes[hidraw.CONFIGURATION]), [])
    allowed = re.compile(re.escape(os.environ["HOME"]) + PREFERENCES)
    checks.equal("no file is changed but its preferences", rights.changes_files_beside(calls, allowed), [])
    checks.check("those are", any(path == stories.preferences_path() for call in calls if call.succeeded
                                  for path in call.paths if call.name in rights.CHANGING))
    checks.equal("no network is talked to", rights.talks_to_networks(calls), [])
    checks.equal("nobody can come in", rights.lets_others_in(calls), [])
    checks.equal("no program is started", rights.starts_programs(calls), [])
    checks.equal("what it opens would not be handed on to one", rights.hands_descriptors_on(calls), [])


def lives(checks, window, application, keyboard):
    """Started for the first time, plugged, an effect, a setting, replugged, quit. Returns the keyboard's nodes."""
    stories.starts_without_keyboard(checks, window)
    stories.launch_is_over(checks, window)
    nodes = stories.plug(checks, keyboard)
    deeds.connects(checks, window, application, keyboard)
    checks.check(f"the row \"{stories.STILL}\" can be chosen", window.choose(stories.STILL))
    deeds.reads(checks, window, f"Applied: {stories.STILL}")
    checks.check("the page \"Device Settings\" can be chosen", window.press_tab("Device Settings"))
    checks.check("the debounce can be set", window.slide("Switch Debounce Time", 20))
    deeds.reads(checks, window, "Debounce set to 20ms")
    stories.unplug(checks, keyboard)
    stories.disconnects(checks, window)
    checks.equal("plugged again it has the same nodes", stories.plug(checks, keyboard), nodes)
    deeds.connects(checks, window, application, keyboard, times=2)
    application.focus()
    stories.quits(checks, application)
    checks.eventually("the process ends", application.ended, lambda status: status is not None)
    checks.equal("with status 0", application.ended(), 0)
    return nodes


def every_rule_sees_its_breach(checks):
    """One line for each rule, as strace would write it."""
    nowhere = re.compile("$.")
    breaches = (
        ("another device", 'openat(AT_FDCWD</tmp>, "/dev/input/event0", O_RDONLY|O_CLOEXEC) = -1 EACCES (No)',
         lambda calls: rights.opens_devices_beside(calls, "/dev/hidraw1")),
        ("a file written", 'openat(AT_FDCWD</tmp>, "/tmp/x", O_WRONLY|O_CREAT|O_CLOEXEC, 0666) = 3</tmp/x>',
         lambda calls: rights.changes_files_beside(calls, nowhere)),
        ("a file removed", 'unlink("/tmp/x") = 0', lambda calls: rights.changes_files_beside(calls, nowhere)),
        ("a file cut", 'ftruncate(3</tmp/x>, 0) = 0', lambda calls: rights.changes_files_beside(calls, nowhere)),
        ("a network", 'socket(AF_INET6, SOCK_STREAM|SOCK_CLOEXEC, IPPROTO_TCP) = 3<TCPv6:[1]>',
         rights.talks_to_networks),
        ("an open door", 'listen(3<UNIX-STREAM:[1]>, 5) = 0', rights.lets_others_in),
        ("a program", 'execve("/usr/bin/x", ["x"], 0x1 /* 1 var */) = 0',
         lambda calls: rights.starts_programs(calls * 2)),
        ("a node handed on", 'openat(AT_FDCWD</tmp>, "/dev/hidraw1", O_RDWR) = 3</dev/hidraw1>',
         rights.hands_descriptors_on),
        ("a copy handed on", 'fcntl(3</tmp/x>, F_DUPFD, 3) = 4</tmp/x>', rights.hands_descriptors_on),
        ("a pipe handed on", 'pipe2([3<pipe:[1]>, 4<pipe:[1]>], O_NONBLOCK) = 0', rights.hands_descriptors_on))
    for what, line, rule in breaches:
        checks.check(f"{what} would be seen", rule(syscalls.calls_in(line)))
