"""The macro page: a macro is added and deleted, of which the keyboard hears nothing."""

import deeds
import wire

ADDED = {"Rapid WASD": False, "Super Jump": False, "Rapid Fire": False, "Macro 4": True}
DELETED = {"Rapid WASD": True, "Super Jump": False, "Rapid Fire": False}


def tell(checks, window, arrivals):
    deeds.opens(checks, window, "Macro Manager")
    lists(checks, window, DELETED)
    deeds.presses(checks, window, "Add macro")
    lists(checks, window, ADDED)
    shows(checks, window, "Macro 4", steps=2)
    deeds.says(checks, window, "0x31")
    deeds.presses(checks, window, "Delete")
    lists(checks, window, DELETED)
    shows(checks, window, "Rapid WASD", steps=4)

    # Whatever a macro had sent would arrive before an effect that is chosen now.
    deeds.opens(checks, window, "Lighting Effect")
    deeds.chooses_raindrops(checks, window)
    wire.effect_is_four_sets_and_two_gets(checks, arrivals.take(checks, 6))


def lists(checks, window, macros):
    checks.eventually(f"the macros are {', '.join(macros)}", window.rows, lambda rows: rows == macros)


def shows(checks, window, macro, steps):
    deeds.says(checks, window, f"TIMELINE: {macro}")
    checks.eventually(f"the timeline has {steps} steps", lambda: list(window.rows("TIMELINE")),
                      lambda rows: rows == [f"Step {number}" for number in range(1, steps + 1)])
