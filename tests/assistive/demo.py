"""The demo, and the keyboard inside it: plugged from the start, and with nobody to talk to but the demo."""

import deeds
import transfers
from application import Application

WELCOME = "Welcome to Vexa Lumo 65"


class Keyboard:
    name = "Vexa Lumo 65"

    def __init__(self, log):
        self._log = log

    def transfers(self):
        """Every transfer so far, oldest first."""
        return transfers.read(self._log)


def start(program, folder):
    """The application and its keyboard; what they write lies in that folder."""
    log = f"{folder}/transfers.jsonl"
    return Application(program, f"{folder}/console.txt", arguments=("--log", log)), Keyboard(log)


def is_welcomed(checks, window):
    """A first launch: its question is put off, and what stays is a word on what is not granted."""
    checks.eventually(f"\"{WELCOME}\" is there", window.dialogs, lambda names: names == [WELCOME])
    deeds.presses(checks, window, "Later / Settings")
    checks.eventually("no prompt is left to be answered", window.dialogs, lambda names: not names)


def is_well(checks, application):
    """It still runs, and has complained of nothing, which is where Qt and the sanitizers would."""
    checks.equal("it still runs", application.ended(), None)
    checks.equal("its console has the handshake alone", application.console_lines(), [deeds.HANDSHAKE_LINE])
