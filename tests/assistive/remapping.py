"""The key assignment page, and what binding a key looks like on the wire."""

import deeds
import expected_table
import wire


def opens_the_page(checks, window):
    deeds.opens(checks, window, "Key Assignment")
    deeds.says(checks, window, "Select a switch on the keyboard above, then click an action below to bind.")


def binds_caps_lock(checks, window, arrivals):
    """The first change reads the table, 30 ms before it is written."""
    chooses_target(checks, window, "CapsLock", 3)
    deeds.says(checks, window, "Default Mapping")
    deeds.presses(checks, window, "Mute")
    query, answer, write = transfers = arrivals.take(checks, 3)
    checks.equal("the table is asked for, read and written", [one.direction for one in transfers],
                 ["set", "get", "set"])
    checks.check("all were accepted", all(one.accepted for one in transfers), f"{transfers}")
    checks.same_bytes("the query of the table", query.bytes, expected_table.KEY_TABLE_READ)
    checks.same_bytes("its answer", answer.bytes, expected_table.KEY_TABLE_BEFORE)
    checks.check("it is fetched 30 ms later at the earliest", answer.us - query.us >= 30 * wire.MS, f"{transfers}")
    checks.same_bytes("the table that is written", write.bytes, expected_table.MUTE_ON_CAPS_LOCK)
    deeds.reads(checks, window, "Key position 3 programmed")
    deeds.says(checks, window, "Current: Mute")
    checks.eventually("the key says so", lambda: window.has_key("CapsLock, bound to Mute"), bool)


def chooses_target(checks, window, label, place):
    checks.check(f"the key \"{label}\" can be pressed", window.press_key(label))
    deeds.says(checks, window, f"{label} (Matrix Pos {place})")
