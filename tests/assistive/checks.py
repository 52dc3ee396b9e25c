"""Counts checks and prints a line for each. What is awaited has a deadline and is asked for again until then."""

import itertools
import time

PAUSE_SECONDS = 0.1


class ChapterOver(Exception):
    """The rest of a chapter makes no sense after what failed."""


class TryAgain(Exception):
    """The machine was too slow to see what was to be seen; nothing is decided."""


class Checks:
    def __init__(self, patience_seconds):
        """For what is awaited; nothing waits longer than it must."""
        self._patience_seconds = patience_seconds
        self.passed = 0
        self.failed = 0

    def check(self, what, holds, detail=""):
        """One check that is decided now."""
        self.passed += bool(holds)
        self.failed += not holds
        print(f"{'PASS' if holds else 'FAIL'}  {what}" + (f": {detail}" if detail and not holds else ""), flush=True)
        return bool(holds)

    def note(self, what):
        """A figure that decides nothing."""
        print(f"      {what}", flush=True)

    def equal(self, what, found, expected):
        return self.check(what, found == expected, f"found {found!r}, expected {expected!r}")

    def same_bytes(self, what, found, expected):
        return self.check(what, found == expected, first_difference(found, expected))

    def eventually(self, what, ask, holds):
        """Asks until `holds(answer)`; a chapter ends here when that never happens. Returns the answer."""
        end = time.monotonic() + self._patience_seconds
        answer = ask()
        while not holds(answer) and time.monotonic() < end:
            time.sleep(PAUSE_SECONDS)
            answer = ask()
        if not self.check(what, holds(answer), f"last seen: {answer!r}"):
            raise ChapterOver(what)
        return answer

    def chapter(self, title, tell, attempts=3):
        """Runs one chapter. An accident in it is a failed check, and the next chapter begins all the same."""
        print(f"----  {title}", flush=True)
        try:
            tell()
        except ChapterOver:
            pass
        except TryAgain as reason:
            if attempts == 1:
                self.check(f"{title} could be seen", False, str(reason))
            else:
                self.chapter(f"{title}, again: {reason}", tell, attempts - 1)
        except Exception as error:  # whatever a laboratory can run into
            self.check(f"{title} is told to its end", False, f"{type(error).__name__}: {error}")


def first_difference(found, expected):
    pairs = itertools.zip_longest(found, expected)
    at = next((at for at, (one, other) in enumerate(pairs) if one != other), len(expected))
    return f"from byte {at}: found {found[at:at + 8].hex(' ')}, expected {expected[at:at + 8].hex(' ')}"
