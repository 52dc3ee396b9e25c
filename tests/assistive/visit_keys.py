"""The key assignment page: CapsLock is bound to Mute."""

import remapping


def tell(checks, window, arrivals):
    remapping.opens_the_page(checks, window)
    remapping.binds_caps_lock(checks, window, arrivals)
