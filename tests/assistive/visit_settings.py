"""The settings page: the debounce is set."""

import deeds
import settings


def tell(checks, window, arrivals):
    deeds.opens(checks, window, "Device Settings")
    settings.sets_the_debounce(checks, window, arrivals)
    checks.equal("the slider stands there", window.level("Switch Debounce Time"), 20)
