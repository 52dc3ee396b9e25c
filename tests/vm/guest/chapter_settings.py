"""The settings page: the debounce, and what "Restore Factory Settings" makes of a keyboard."""

import expected
import expected_settings
import settings
import stories
from arrivals import Arrivals


def tell(checks, window, application, keyboard):
    arrivals = Arrivals(keyboard)
    stories.plug(checks, keyboard)
    stories.connects(checks, window, application, keyboard)
    stories.handshake_is_one_pair(checks, arrivals.take(checks, 2))

    checks.check("the page \"Device Settings\" can be chosen", window.press_tab("Device Settings"))
    sets_the_sleep_timeout(checks, window)
    sets_the_debounce(checks, window, arrivals)
    restores(checks, window, keyboard, arrivals)

    stories.unplug(checks, keyboard)
    stories.disconnects(checks, window)
    arrivals.end(checks)


def sets_the_sleep_timeout(checks, window):
    """The keyboard knows none, so that nothing is sent: what arrives next is the debounce."""
    slider = "Wireless Idle Sleep Timeout"
    checks.check("the sleep timeout can be set", window.slide(slider, 30))
    checks.eventually("the slider stands there", lambda: window.level(slider), lambda level: level == 30)


def sets_the_debounce(checks, window, arrivals):
    """One use of a slider is a command with the old 4 ms when it begins and one with the new 20 when it ends."""
    slider = "Switch Debounce Time"
    checks.check("the debounce can be set", window.slide(slider, 20))
    begun, ended = expected_settings.with_debounce(0), expected_settings.with_debounce(2)
    settings.is_exchange(checks, "below 10 ms", arrivals.take(checks, 3), expected.PARAMETER_BLOCK_BEFORE, begun, 20)
    settings.is_exchange(checks, "20 ms", arrivals.take(checks, 3), begun, ended, 20)
    reads(checks, window, "Debounce set to 20ms")


def restores(checks, window, keyboard, arrivals):
    checks.check("the factory settings can be restored", window.press("Restore Factory Settings"))
    stories.effect_is_four_sets_and_two_gets(checks, arrivals.take(checks, 6),
                                             parameters=expected_settings.RESTORED_LIGHTING)
    settings.is_exchange(checks, "the debounce of the defaults", arrivals.take(checks, 3),
                         expected_settings.RESTORED_LIGHTING, expected_settings.RESTORED_DEBOUNCE, 20)
    reads(checks, window, "Debounce set to 10ms")
    stories.registers_hold(checks, keyboard, "restored", expected_settings.RESTORED_DEBOUNCE,
                           expected.COLOUR_BLOCK_WRITE)


def reads(checks, window, status):
    checks.eventually(f"the status reads \"{status}\"", window.status, lambda texts: texts[:1] == [status])
