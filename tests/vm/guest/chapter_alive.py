"""The main loop turns while the keyboard answers nothing, whatever waits behind it; and quitting waits for nothing."""

import os
import signal
import time

import deeds
import stories
import turns
from checks import TryAgain

LIMIT_MS = 100
LIGHTING = ("set 8a", "get 8a", "set 0a", "set 84", "get 84", "set 04")
COMMANDS = 200
STOPPED_MS = 300


def tell(checks, window, application, keyboard, probe):
    stories.starts_without_keyboard(checks, window)
    stands_still(checks, window, application, probe)
    keyboard.tell("clear")
    before = len(keyboard.transfers())

    def keeps_turning(hang, transfer):
        watch(checks, application, keyboard, probe, hang, before + transfer)

    keyboard.tell("fault set 82 hang once")
    stories.plug(checks, keyboard)
    keeps_turning("set 82", 1)
    deeds.reads(checks, window, stories.FALLBACK)
    stories.unplug(checks, keyboard)
    stories.disconnects(checks, window)
    keyboard.tell("fault get 82 hang once")
    stories.plug(checks, keyboard)
    keeps_turning("get 82", 3)
    deeds.reads(checks, window, stories.FALLBACK)

    # One command hangs at its last transfer, while others are queued; from then on all transfers hang.
    keyboard.tell("fault set any hang skip 3")
    keyboard.tell("fault get any hang skip 2")
    checks.check(f"the row \"{stories.STILL}\" can be chosen", window.choose(stories.STILL))
    checks.eventually("its last transfer gets no answer", lambda: len(keyboard.transfers()) - before,
                      lambda transfers: transfers == 9)
    commands_wait(checks, window, probe)
    for transfer, hang in enumerate(LIGHTING, start=10):
        keeps_turning(hang, transfer)
    quits_behind_commands(checks, application)
    checks.check("and has left the commands undone", len(keyboard.transfers()) - before < COMMANDS)


def stands_still(checks, window, application, probe):
    """What the probe measures without a keyboard, and that it would see a loop that stands still."""
    begin = time.monotonic()
    checks.check(f"the row \"{stories.STILL}\" can be chosen", window.choose(stories.STILL))
    deeds.reads(checks, window, f"Previewing {stories.STILL} (Simulated)")
    time.sleep(1)  # what is told of: the rows fade
    checks.note(f"painting the choice of an effect, {figures(probe.between(begin, time.monotonic()))}")
    begin = time.monotonic()
    time.sleep(2)
    checks.note(f"doing nothing, {figures(probe.between(begin, time.monotonic()))}")
    begin = time.monotonic()
    time.sleep(0.6)
    os.kill(application.pid, signal.SIGSTOP)
    time.sleep(STOPPED_MS / 1000)
    os.kill(application.pid, signal.SIGCONT)
    time.sleep(1.2)
    longest = turns.longest_ms(probe.between(begin, time.monotonic()))
    checks.check(f"a loop stopped for {STOPPED_MS} ms is seen", longest >= STOPPED_MS, f"{longest:.0f} ms")


def watch(checks, application, keyboard, probe, hang, transfers):
    """From the moment that this transfer is seen to get no answer to the last one at which it still got none."""
    def is_under_way():
        return len(keyboard.transfers()) == transfers and application.is_inside_an_exchange()

    checks.eventually(f"\"{hang}\" gets no answer", is_under_way, bool)
    begin = end = time.monotonic()
    while is_under_way():
        end = time.monotonic()
        time.sleep(0.1)
    lines = probe.between(begin, end)
    if not lines:
        raise TryAgain(f"\"{hang}\" was seen for {end - begin:.1f} seconds only")
    too_long = [line for line in lines if is_too_long(line)]
    silent_ms = 1000 * (end - lines[-1].at - turns.LINE_SECONDS)
    checks.check(f"the loop turns meanwhile, {figures(lines)}", not too_long and silent_ms < LIMIT_MS,
                 f"at the end silent for {silent_ms:.0f} ms")


def is_too_long(line):
    """Where the machine itself stood still for long, that time is not the program's."""
    by_machine_ms = line.machine_near_ms if line.machine_near_ms >= LIMIT_MS / 2 else 0
    return line.longest_ms - by_machine_ms >= LIMIT_MS


def commands_wait(checks, window, probe):
    begin = time.monotonic()
    taken = window.choose_often(stories.STILL, COMMANDS)
    seconds = time.monotonic() - begin
    checks.equal(f"{COMMANDS} commands are queued", taken, COMMANDS)
    time.sleep(turns.LINE_SECONDS)  # until the probe has told of it
    checks.note(f"queueing them, {seconds:.1f} s, {figures(probe.between(begin - 0.5, time.monotonic()))}")


def quits_behind_commands(checks, application):
    application.focus()
    checks.eventually("an exchange is under way", application.is_inside_an_exchange, bool)
    stories.quits(checks, application)
    checks.eventually("the process ends", application.ended, lambda status: status is not None)
    checks.equal("with status 0", application.ended(), 0)


def figures(lines):
    longest, machine = turns.longest_ms(lines), turns.machine_ms(lines)
    seconds = len(lines) * turns.LINE_SECONDS
    return f"{longest:.0f} ms between two turns at most (the machine {machine:.0f} ms) in {seconds} s"
