"""The lighting page: an effect is chosen, four keys are selected one by one, and painted."""

import deeds
import expected
import expected_keys
import expected_levels
import uploads
import wire

EFFECT = "Self-define (Per-Key RGB)"
RAINDROPS = wire.as_read(expected.PARAMETER_BLOCK_WRITE)
OWN_COLOURS = expected_keys.PARAMETER_BLOCK_ON_RAINDROPS


def tell(checks, window, arrivals):
    deeds.opens(checks, window, "Lighting Effect")
    deeds.chooses_raindrops(checks, window)
    wire.effect_is_four_sets_and_two_gets(checks, arrivals.take(checks, 6))
    selects_wasd(checks, window)
    picks_pink(checks, window, arrivals)
    uploads.follows(checks, window, arrivals, f"the row \"{EFFECT}\" can be chosen", lambda: window.choose(EFFECT),
                    expected_keys.VIOLET, RAINDROPS, OWN_COLOURS)
    deeds.is_marked(checks, window, EFFECT)
    uploads.follows(checks, window, arrivals, "the selected keys can be painted",
                    lambda: window.press("Paint Selected (4)"),
                    expected_keys.PINK_WASD, wire.as_read(OWN_COLOURS), OWN_COLOURS)


def selects_wasd(checks, window):
    """The first by its own action; the others, which join it, by a key of the user's once they have the focus."""
    checks.check("the key \"W\" can be pressed", window.press_key("W"))
    for selected in (["W", "A"], ["W", "A", "S"], ["W", "A", "S", "D"]):
        label = selected[-1]
        checks.check(f"the key \"{label}\" can be focused", window.focus_key(label))
        checks.eventually(f"the key \"{label}\" has the focus", window.focused_keys, lambda keys: keys == [label])
        checks.check("Control and the space bar are pressed", window.press_control_space())
        checks.eventually(f"{', '.join(selected)} are selected", window.selected_keys, lambda keys: keys == selected)
    deeds.says(checks, window, "4 of 67 keys selected")
    deeds.has_button(checks, window, "Paint Selected (4)")


def picks_pink(checks, window, arrivals):
    """Which an effect of one colour takes at once."""
    deeds.presses(checks, window, "Pink")
    wire.effect_is_four_sets_and_two_gets(checks, arrivals.take(checks, 6), expected_levels.COLOUR_BLOCK_WRITE)
    checks.eventually("\"Pink\" is chosen", lambda: window.is_chosen("Pink"), bool)
