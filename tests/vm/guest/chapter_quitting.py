"""Quitting while the keyboard does not answer: the window goes at once, the process when the kernel lets it."""

import time

import deeds
import stories
from checks import TryAgain

KERNEL_PATIENCE_SECONDS = 5  # after that a USB transfer without an answer has failed


def tell(checks, window, application, keyboard, hang):
    keyboard.tell("clear")
    stories.plug(checks, keyboard)
    deeds.connects(checks, window, application, keyboard)
    application.focus()
    keyboard.tell(f"fault {hang}")

    begin = time.monotonic()
    owed = begins_an_exchange(checks, window, application, keyboard)
    stories.quits(checks, application)
    is_under_way = application.is_inside_an_exchange()
    if not is_under_way and time.monotonic() - begin >= KERNEL_PATIENCE_SECONDS:
        raise TryAgain("the kernel gave up the exchange before the window was looked at")
    checks.check("while the exchange is still under way", is_under_way)
    checks.eventually("the process ends", application.ended, lambda status: status is not None)
    checks.equal("with status 0", application.ended(), 0)
    checks.equal("and has begun no further exchange", len(keyboard.transfers()), owed)


def begins_an_exchange(checks, window, application, keyboard):
    """Returns how many transfers there were, with the one that gets no answer."""
    before = len(keyboard.transfers())
    checks.check(f"the row \"{stories.STILL}\" can be chosen", window.choose(stories.STILL))
    transfers = checks.eventually("the keyboard owes an answer", lambda: keyboard.transfers()[before:],
                                  lambda begun: begun and not begun[-1].accepted)
    checks.check("the exchange is under way", application.is_inside_an_exchange())
    return before + len(transfers)
