"""Started without a keyboard, plugged, an effect chosen, unplugged, plugged again."""

import deeds
import expected
import hidraw
import stories
import wire


def tell(checks, window, application, keyboard):
    stories.starts_without_keyboard(checks, window)
    stories.launch_is_over(checks, window)
    nodes = stories.plug(checks, keyboard)
    deeds.connects(checks, window, application, keyboard)
    wire.handshake_is_one_pair(checks, keyboard.transfers())
    stories.registers_hold(checks, keyboard, "before", expected.PARAMETER_BLOCK_BEFORE, expected.COLOUR_BLOCK_BEFORE)

    deeds.chooses_raindrops(checks, window)
    wire.effect_is_four_sets_and_two_gets(checks, keyboard.transfers()[2:])
    stories.registers_hold(checks, keyboard, "after", expected.PARAMETER_BLOCK_WRITE, expected.COLOUR_BLOCK_WRITE)
    checks.check("the typing interface is not opened", nodes[hidraw.TYPING] not in hidraw.opened_by(application.pid))

    stories.unplug(checks, keyboard)
    stories.disconnects(checks, window)
    checks.eventually("no node of the keyboard stays open", lambda: hidraw.opened_by(application.pid),
                      lambda opened: not opened)
    plugs_again(checks, window, application, keyboard)


def plugs_again(checks, window, application, keyboard):
    before = len(keyboard.transfers())
    stories.plug(checks, keyboard)
    deeds.connects(checks, window, application, keyboard, times=2)
    wire.handshake_is_one_pair(checks, keyboard.transfers()[before:])
