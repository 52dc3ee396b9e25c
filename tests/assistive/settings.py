"""A setting is changed, and what that looks like on the wire: the block is asked for, read, and written with that
byte."""

import deeds
import expected
import expected_settings
import wire


def is_exchange(checks, what, transfers, before, written, least_ms):
    """Three transfers; `before` is the block that the keyboard held."""
    query, answer, write = transfers
    checks.equal(f"{what}: asked for, read and written", [one.direction for one in transfers], ["set", "get", "set"])
    checks.check(f"{what}: all were accepted", all(one.accepted for one in transfers), f"{transfers}")
    checks.same_bytes(f"{what}: the query", query.bytes, expected.PARAMETER_BLOCK_READ)
    checks.same_bytes(f"{what}: the answer", answer.bytes, wire.as_read(before))
    checks.check(f"{what}: the answer is fetched {least_ms} ms later at the earliest",
                 answer.us - query.us >= least_ms * wire.MS, f"{transfers}")
    checks.same_bytes(f"{what}: what is written", write.bytes, written)


def sets_the_debounce(checks, window, arrivals):
    """One use of a slider is a command with the old 4 ms when it begins and one with the new 20 when it ends."""
    slider = "Switch Debounce Time"
    checks.check("the debounce can be set", window.slide(slider, 20))
    begun, ended = expected_settings.with_debounce(0), expected_settings.with_debounce(2)
    is_exchange(checks, "below 10 ms", arrivals.take(checks, 3), expected.PARAMETER_BLOCK_BEFORE, begun, 20)
    is_exchange(checks, "20 ms", arrivals.take(checks, 3), begun, ended, 20)
    deeds.reads(checks, window, "Debounce set to 20ms")
