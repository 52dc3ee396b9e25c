"""The settings page: the debounce, and what "Restore Factory Settings" makes of a keyboard."""

import deeds
import expected
import expected_settings
import settings
import stories
import wire
from arrivals import Arrivals


def tell(checks, window, application, keyboard):
    arrivals = Arrivals(keyboard)
    stories.plug(checks, keyboard)
    deeds.connects(checks, window, application, keyboard)
    wire.handshake_is_one_pair(checks, arrivals.take(checks, 2))

    deeds.opens(checks, window, "Device Settings")
    sets_the_sleep_timeout(checks, window)
    settings.sets_the_debounce(checks, window, arrivals)
    restores(checks, window, keyboard, arrivals)

    stories.unplug(checks, keyboard)
    stories.disconnects(checks, window)
    arrivals.end(checks)


def sets_the_sleep_timeout(checks, window):
    """The keyboard knows none, so that nothing is sent: what arrives next is the debounce."""
    slider = "Wireless Idle Sleep Timeout"
    checks.check("the sleep timeout can be set", window.slide(slider, 30))
    checks.eventually("the slider stands there", lambda: window.level(slider), lambda level: level == 30)


def restores(checks, window, keyboard, arrivals):
    checks.check("the factory settings can be restored", window.press("Restore Factory Settings"))
    wire.effect_is_four_sets_and_two_gets(checks, arrivals.take(checks, 6),
                                          parameters=expected_settings.RESTORED_LIGHTING)
    settings.is_exchange(checks, "the debounce of the defaults", arrivals.take(checks, 3),
                         expected_settings.RESTORED_LIGHTING, expected_settings.RESTORED_DEBOUNCE, 20)
    deeds.reads(checks, window, "Debounce set to 10ms")
    stories.registers_hold(checks, keyboard, "restored", expected_settings.RESTORED_DEBOUNCE,
                           expected.COLOUR_BLOCK_WRITE)
