"""The music page streams, and what the keyboard hears of it: one exchange each time the loudness changes its level."""

import deeds
import expected
import expected_settings
import settings

MODE = "Dazzling - rock"


def opens_the_page(checks, window):
    deeds.opens(checks, window, "Music Visualizer")
    checks.eventually("nothing streams yet", lambda: window.has_button("STREAM: OFF"), bool)


def starts(checks, window):
    checks.check(f"the mode \"{MODE}\" can be chosen", window.choose(MODE))
    checks.eventually("it streams", lambda: window.has_button("STREAMING: ON"), bool)
    deeds.reads(checks, window, f"Music reactive mode: {MODE}")


def stops(checks, window):
    checks.check("the stream can be stopped", window.press("STREAMING: ON"))
    checks.eventually("it streams no more", lambda: window.has_button("STREAM: OFF"), bool)


def levels_arrive(checks, arrivals, levels):
    before = expected.PARAMETER_BLOCK_BEFORE
    for at, level in enumerate(levels):
        written = expected_settings.with_brightness(level)
        settings.is_exchange(checks, f"change {at + 1}, to level {level}", arrivals.take(checks, 3), before, written, 10)
        before = written
