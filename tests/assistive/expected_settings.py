"""The parameter block as music and settings leave it, literally."""

import expected
from expected_keys import patched

# The loudness of the rhythm from its first step on, as levels, where it starts from brightness 4.
LEVELS = (2, 3, 2, 3, 2, 3, 2, 3, 2, 3, 2, 3, 2, 1, 2, 3)
# Of these, what ten seconds reach.
LEVELS_OF_TEN_SECONDS = 11


def changes_within(seconds):
    """How many of the levels are told at most in that time; two more, where it begins in the middle of a bar."""
    return LEVELS_OF_TEN_SECONDS * seconds / 10 + 2


def with_brightness(level):
    return patched(expected.PARAMETER_BLOCK_BEFORE, {1: 0x04, 20: level, 134: 0x5A, 135: 0xA5})


def with_debounce(level):
    return patched(expected.PARAMETER_BLOCK_BEFORE, {1: 0x04, 10: level, 134: 0x5A, 135: 0xA5})


# Restoring is effect 13 with speed 2 and brightness 4 on top of level 2 of the debounce, and then its level 1.
RESTORED_LIGHTING = patched(with_debounce(2), {18: 0x13, 19: 0x02, 20: 0x04, 21: 0x01, 104: 0x04, 105: 0x21})
RESTORED_DEBOUNCE = patched(RESTORED_LIGHTING, {10: 0x01})
