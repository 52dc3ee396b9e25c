"""The remap page: keys are bound, sent again and reset. Everything is found by its name and used by its action."""

import deeds
import expected_table
import remapping
import stories
import wire
from arrivals import Arrivals

KEYS = 67


def tell(checks, window, application, keyboard):
    arrivals = Arrivals(keyboard)
    stories.plug(checks, keyboard)
    deeds.connects(checks, window, application, keyboard)
    wire.handshake_is_one_pair(checks, arrivals.take(checks, 2))
    checks.same_bytes("the keyboard's table before", keyboard.registers()["keys"], expected_table.KEY_TABLE_BEFORE)

    remapping.opens_the_page(checks, window)
    binds_without_a_target(checks, window)
    remapping.binds_caps_lock(checks, window, arrivals)
    binds_a(checks, window, arrivals)
    saves(checks, window, arrivals)
    resets_half(checks, window, keyboard, arrivals)
    resets(checks, window, keyboard, arrivals)

    stories.unplug(checks, keyboard)
    stories.disconnects(checks, window)
    arrivals.end(checks)


def binds_without_a_target(checks, window):
    checks.check("the action \"Mute\" can be pressed", window.press("Mute"))
    deeds.reads(checks, window, "Please select a switch on the keyboard first.")


def binds_a(checks, window, arrivals):
    remapping.chooses_target(checks, window, "A", 9)
    checks.check("the category \"Function (F1-F12)\" can be chosen", window.press_tab("Function (F1-F12)"))
    checks.eventually("the action \"F5\" is shown", lambda: window.has_button("F5"), bool)
    checks.check("the action \"F5\" can be pressed", window.press("F5"))
    is_write(checks, arrivals, "the table that is known is written", expected_table.F5_ON_A_TOO)
    deeds.reads(checks, window, "Key position 9 programmed")
    deeds.says(checks, window, "Current: F5")


def saves(checks, window, arrivals):
    checks.check("the button \"Save Key Matrix\" can be pressed", window.press("Save Key Matrix"))
    is_write(checks, arrivals, "CapsLock goes out again", expected_table.F5_ON_A_TOO)
    is_write(checks, arrivals, "and A after it", expected_table.F5_ON_A_TOO)


def resets_half(checks, window, keyboard, arrivals):
    """The keyboard refuses the first write, the third and so on to the last; what is known goes with what it holds."""
    for passed in range(KEYS // 2 + 1):  # one that was refused is none that the next fault counts
        keyboard.tell(f"fault set 03 refuse skip {passed} once")
    checks.check("the button \"Reset to Defaults\" can be pressed before a stubborn keyboard",
                 window.press("Reset to Defaults"))
    writes = arrivals.take(checks, KEYS)
    checks.equal("every second write is refused", [one.accepted for one in writes], [at % 2 == 1 for at in range(KEYS)])
    deeds.reads(checks, window, "Key remap write failed")
    held = keyboard.registers()["keys"]
    checks.same_bytes("the keyboard holds the last write that it took", held[8:], writes[-2].bytes[8:])
    checks.check("and so none of the codes that it refused", held[8:] != writes[-1].bytes[8:])
    keyboard.tell("clear")
    checks.check("the action \"F6\" can be pressed", window.press("F6"))
    is_write(checks, arrivals, "the next write is what the keyboard holds, and F6 on A",
             expected_table.written(held, {expected_table.A: bytes.fromhex("00 00 00 3f")}))
    deeds.reads(checks, window, "Key position 9 programmed")


def resets(checks, window, keyboard, arrivals):
    checks.check("the button \"Reset to Defaults\" can be pressed", window.press("Reset to Defaults"))
    writes = arrivals.take(checks, KEYS)
    checks.check("67 tables are written", all(one.direction == "set" and one.bytes[1] == 0x03 for one in writes))
    checks.check("all were accepted", all(one.accepted for one in writes), f"{writes}")
    checks.same_bytes("the last of them", writes[-1].bytes, expected_table.KEY_TABLE_RESET)
    deeds.reads(checks, window, "Key position 65 programmed")
    deeds.says(checks, window, "Default Mapping")
    table_is_reset(checks, keyboard.registers()["keys"])


def table_is_reset(checks, held):
    checks.same_bytes("the keyboard's own table", held, wire.as_read(expected_table.KEY_TABLE_RESET))
    for label, place, code in (("FN", 59, "0d 00 00 00"), ("A", 9, "00 00 00 41"), ("LShift", 4, "00 02 00 00")):
        checks.same_bytes(f"{label} is at its factory code there", expected_table.code(held, place),
                          bytes.fromhex(code))
    foreign = [place for place in range(128) if place not in expected_table.OWNED]
    checks.equal("every place that no key owns is as it was",
                 [expected_table.code(held, place) for place in foreign],
                 [expected_table.code(expected_table.KEY_TABLE_BEFORE, place) for place in foreign])


def is_write(checks, arrivals, what, table):
    write, = arrivals.take(checks, 1)
    checks.check(f"{what}, accepted", write.accepted, f"{write}")
    checks.same_bytes(f"{what}, byte by byte", write.bytes, table)
