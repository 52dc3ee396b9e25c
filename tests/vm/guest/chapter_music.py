"""The music page: ten seconds of stream, of which the keyboard hears only when the loudness changes its level."""

import time

import deeds
import expected_settings
import stories
import streaming
import wire
from arrivals import Arrivals

SECONDS = 10
FEWEST = 5  # an emulated processor may leave steps out


def tell(checks, window, application, keyboard):
    arrivals = Arrivals(keyboard)
    stories.plug(checks, keyboard)
    deeds.connects(checks, window, application, keyboard)
    wire.handshake_is_one_pair(checks, arrivals.take(checks, 2))

    streaming.opens_the_page(checks, window)
    seconds = streams(checks, window)
    levels_alone_arrived(checks, keyboard, arrivals, seconds)

    stories.unplug(checks, keyboard)
    stories.disconnects(checks, window)
    arrivals.end(checks)


def streams(checks, window):
    """For about ten seconds; returns how long it was at most."""
    begin = time.monotonic()
    streaming.starts(checks, window)
    time.sleep(SECONDS)  # what is told of, not what is awaited
    streaming.stops(checks, window)
    return time.monotonic() - begin


def levels_alone_arrived(checks, keyboard, arrivals, seconds):
    sent = len(keyboard.transfers()) - 2
    checks.check("what arrived is whole exchanges", sent % 3 == 0, f"{sent} transfers")
    checks.check(f"as many as levels change in that time, at least {FEWEST}",
                 FEWEST <= sent // 3 <= expected_settings.changes_within(seconds), f"{sent // 3} in {seconds:.1f} s")
    streaming.levels_arrive(checks, arrivals, expected_settings.LEVELS[:sent // 3])
