"""The lighting page: each key its own colour, then a level. Everything is found by its name and used by its action."""

import deeds
import expected
import expected_keys
import expected_levels
import stories
import uploads
import wire
from arrivals import Arrivals


def tell(checks, window, application, keyboard):
    arrivals = Arrivals(keyboard)
    stories.plug(checks, keyboard)
    deeds.connects(checks, window, application, keyboard)
    wire.handshake_is_one_pair(checks, arrivals.take(checks, 2))

    def uploads_after(what, deed, colours, **before):
        uploads.follows(checks, window, arrivals, what, deed, colours, **before)

    chooses_the_keys_own_colours(checks, window, uploads_after)
    paints_a_group(checks, window, uploads_after)
    paints_a_key(checks, window, uploads_after)
    uploads_after("the button \"Rainbow Preset\" can be pressed", lambda: window.press("Rainbow Preset"),
                  expected_keys.RAINBOW)
    fills_all(checks, window, uploads_after)
    chooses_raindrops(checks, window, arrivals)
    turns_the_brightness_down(checks, window, arrivals)

    stories.unplug(checks, keyboard)
    stories.disconnects(checks, window)
    arrivals.end(checks)


def chooses_the_keys_own_colours(checks, window, uploads_after):
    effect = "Self-define (Per-Key RGB)"
    uploads_after(f"the row \"{effect}\" can be chosen", lambda: window.choose(effect), expected_keys.VIOLET,
                  parameters=expected.PARAMETER_BLOCK_BEFORE)
    deeds.is_marked(checks, window, effect)


def paints_a_group(checks, window, uploads_after):
    checks.check("the group \"WASD\" can be pressed", window.press("WASD"))
    deeds.says(checks, window, "4 of 67 keys selected")
    deeds.has_button(checks, window, "Paint Selected (4)")
    uploads_after("the swatch \"Pink\" can be pressed", lambda: window.press("Pink"), expected_keys.PINK_WASD)


def paints_a_key(checks, window, uploads_after):
    uploads_after("the key \"Esc\" can be pressed", lambda: window.press_key("Esc"), expected_keys.PINK_WASD_AND_ESC)
    deeds.says(checks, window, "Selected: Esc 0x1B • LED Index: 0")
    checks.eventually("\"Esc\" alone is selected", window.selected_keys, lambda keys: keys == ["Esc"])


def fills_all(checks, window, uploads_after):
    uploads_after("the button \"Fill All\" can be pressed", lambda: window.press("Fill All"), expected_keys.PINK)
    deeds.says(checks, window, "67 of 67 keys selected")
    deeds.has_button(checks, window, "Paint Selected (67)")


def chooses_raindrops(checks, window, arrivals):
    deeds.chooses_raindrops(checks, window)
    is_command(checks, arrivals.take(checks, 6), expected_levels.BRIGHTNESS_4)


def turns_the_brightness_down(checks, window, arrivals):
    """One use of a slider is a command with the old level when it begins and one with the new when it ends."""
    uploads.clears_status(checks, window)
    checks.check("the slider \"BRIGHTNESS\" takes the level 1", window.slide("BRIGHTNESS", 1))
    is_command(checks, arrivals.take(checks, 6), expected_levels.BRIGHTNESS_4)
    is_command(checks, arrivals.take(checks, 6), expected_levels.BRIGHTNESS_1)
    checks.eventually("the status reads \"Applied: Raindrops\"", window.status,
                      lambda texts: texts[:1] == ["Applied: Raindrops"])
    checks.equal("the slider stands there", window.level("BRIGHTNESS"), 1)


def is_command(checks, transfers, parameters):
    wire.effect_is_four_sets_and_two_gets(checks, transfers, expected_levels.COLOUR_BLOCK_WRITE, parameters)
