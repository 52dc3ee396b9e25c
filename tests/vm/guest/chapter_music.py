"""The music page: ten seconds of stream, of which the keyboard hears only when the loudness changes its level."""

import time

import expected
import expected_settings
import settings
import stories
from arrivals import Arrivals

MODE = "Dazzling - rock"
SECONDS = 10
FEWEST = 5  # an emulated processor may leave steps out


def tell(checks, window, application, keyboard):
    arrivals = Arrivals(keyboard)
    stories.plug(checks, keyboard)
    stories.connects(checks, window, application, keyboard)
    stories.handshake_is_one_pair(checks, arrivals.take(checks, 2))

    checks.check("the page \"Music Visualizer\" can be chosen", window.press_tab("Music Visualizer"))
    checks.eventually("nothing streams yet", lambda: window.has_button("STREAM: OFF"), bool)
    streams(checks, window)
    levels_alone_arrived(checks, keyboard, arrivals)

    stories.unplug(checks, keyboard)
    stories.disconnects(checks, window)
    arrivals.end(checks)


def streams(checks, window):
    checks.check(f"the mode \"{MODE}\" can be chosen", window.choose(MODE))
    checks.eventually("it streams", lambda: window.has_button("STREAMING: ON"), bool)
    checks.eventually("the status tells of the mode", window.status,
                      lambda texts: texts[:1] == [f"Music reactive mode: {MODE}"])
    time.sleep(SECONDS)  # what is told of, not what is awaited
    checks.check("the stream can be stopped", window.press("STREAMING: ON"))
    checks.eventually("it streams no more", lambda: window.has_button("STREAM: OFF"), bool)


def levels_alone_arrived(checks, keyboard, arrivals):
    sent = len(keyboard.transfers()) - 2
    levels = expected_settings.LEVELS[:sent // 3]
    checks.check("what arrived is whole exchanges", sent % 3 == 0, f"{sent} transfers")
    checks.check(f"as many as levels change in ten seconds, at least {FEWEST}",
                 FEWEST <= sent // 3 <= expected_settings.LEVELS_OF_TEN_SECONDS + 2, f"{sent // 3} exchanges")
    before = expected.PARAMETER_BLOCK_BEFORE
    for at, level in enumerate(levels):
        written = expected_settings.with_brightness(level)
        settings.is_exchange(checks, f"change {at + 1}, to level {level}", arrivals.take(checks, 3), before, written, 10)
        before = written
