"""What an upload of the keys' own colours looks like on the wire and at the window's foot."""

import expected
import expected_keys
from wire import MS

SYNCHRONIZED = "Custom Per-Key RGB Synchronized (67 keys)"


def follows(checks, window, arrivals, what, deed, colours, parameters=expected_keys.PARAMETER_BLOCK_KEPT,
            written=expected_keys.PARAMETER_BLOCK_WRITE):
    """Does `deed` and sees one upload of `colours`; `parameters` is the block that the keyboard answers before the new
    one is written."""
    clears_status(checks, window)
    checks.check(what, deed())
    transfers = arrivals.take(checks, 6)
    is_five_sets_and_a_get(checks, transfers)
    bytes_are_right(checks, [one.bytes for one in transfers], colours, parameters, written)
    checks.eventually(f"the status reads \"{SYNCHRONIZED}\"", window.status, lambda texts: texts[:1] == [SYNCHRONIZED])


def clears_status(checks, window):
    """One upload's text is the next one's; a profile, which is nothing to the keyboard, puts another in between."""
    checks.check("\"Profile 2\" can be pressed", window.press_radio("Profile 2"))
    checks.eventually("the status tells of it", window.status, lambda texts: texts[:1] == ["Switched to Profile 2"])


def is_five_sets_and_a_get(checks, transfers):
    order = ["set", "set", "set", "set", "get", "set"]
    checks.equal("the upload is five sets and a get", [one.direction for one in transfers], order)
    checks.check("all were accepted", all(one.accepted for one in transfers), f"{transfers}")
    checks.check("all have 520 bytes", all(one.length == 520 for one in transfers), f"{transfers}")
    gaps = [after.us - before.us for before, after in zip(transfers, transfers[1:])]
    checks.check("at least 50, 50, 30 and 20 ms lie between them, the last before the get",
                 all(gap >= least * MS for gap, least in zip(gaps, (50, 50, 30, 20))), f"{gaps} microseconds")


def bytes_are_right(checks, reports, colours, parameters, written):
    wanted = (*colours, expected.PARAMETER_BLOCK_READ, parameters, written)
    names = ("the first colour bank", "the second colour bank", "the LED planes", "the query of the parameter block",
             "its answer", "the parameter block that is written")
    for name, found, literal in zip(names, reports, wanted):
        checks.same_bytes(f"{name}, byte by byte", found, literal)
