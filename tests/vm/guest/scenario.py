"""Everything that is shown on a real kernel, in order. Ends with 0 when every check passed."""

import functools
import os
import sys

import chapter_alive
import chapter_faults
import chapter_life
import chapter_lighting
import chapter_misbehaving
import chapter_music
import chapter_quitting
import chapter_remap
import chapter_rights
import chapter_settings
import chapter_traced
import desktop
import hidraw
import syscalls
import turns
from application import Application
from checks import Checks
from keyboard import Keyboard
from window import Window

BIN = os.environ["LUMO_BIN"]
LOGS = "/run/lumo"
PATIENCE_SECONDS = 120  # emulation on a busy machine
CABLE = {"vendor": "258A", "product": "010C"}
RECEIVER = {"vendor": "3554", "product": "FA09"}


def keyboards():
    """All are started while we are root, and none is plugged. Their names are no other text of the application."""
    usb, uhid = f"{BIN}/lumo-usbip-keyboard", f"{BIN}/lumo-uhid-keyboard"
    programs = {"rights": (usb, CABLE), "rights-receiver": (usb, RECEIVER), "usb": (usb, CABLE),
                "lighting": (usb, CABLE), "remap": (usb, CABLE), "music": (usb, RECEIVER), "settings": (usb, CABLE),
                "uhid": (uhid, RECEIVER), "faults": (usb, CABLE), "another": (usb, RECEIVER),
                "traced": (usb, CABLE), "alive": (usb, CABLE),
                "hanging-set": (usb, RECEIVER), "hanging-get": (usb, CABLE)}
    return {chapter: Keyboard(program, f"{LOGS}/{chapter}.jsonl", name=f"Lumo <{chapter}> ü", **ids)
            for chapter, (program, ids) in programs.items()}


def tell_as_root(checks, boards):
    checks.chapter("Rights, by cable", lambda: chapter_rights.tell(checks, boards["rights"]))
    checks.chapter("Rights, by receiver", lambda: chapter_rights.tell(checks, boards["rights-receiver"]))
    checks.chapter("Every fault", lambda: chapter_faults.tell(checks, BIN, LOGS))


def tell_as_user(checks, boards):
    def chapter(title, board, tell, **launch):
        checks.chapter(title, lambda: with_application(checks, board, boards[board], tell, **launch))

    probe = turns.Probe(f"{BIN}/../probe", f"{LOGS}/turns.txt")
    log = syscalls.Log(f"{LOGS}/trace")

    chapter("Rights of the running program", "traced", functools.partial(chapter_traced.tell, log=log),
            watched_by=log.command)
    chapter("USB keyboard", "usb", chapter_life.tell)
    chapter("Lighting page", "lighting", chapter_lighting.tell)
    chapter("Remap page", "remap", chapter_remap.tell)
    chapter("Music page", "music", chapter_music.tell)
    chapter("Settings page", "settings", chapter_settings.tell)
    chapter("HID keyboard without a bus", "uhid", chapter_life.tell)
    chapter("Faults in the window", "faults",
            functools.partial(chapter_misbehaving.tell, another=boards["another"]))
    chapter("Alive while the keyboard hangs", "alive", functools.partial(chapter_alive.tell, probe=probe),
            environment=probe.environment)
    for board, hang in (("hanging-set", "set 8a hang"), ("hanging-get", "get 8a hang")):
        chapter(f"Quitting while \"{hang}\"", board, functools.partial(chapter_quitting.tell, hang=hang))


def with_application(checks, name, keyboard, tell, **launch):
    checks.eventually("no keyboard is left from before", hidraw.nodes, lambda nodes: not nodes)
    application = Application(f"{BIN}/vexa-lumo-65", f"{LOGS}/{name}.console.txt", **launch)
    try:
        tell(checks, Window(application), application, keyboard)
    finally:
        application.stop()
        keyboard.unplug()


def main():
    os.makedirs(LOGS, mode=0o1777, exist_ok=True)
    os.chmod(LOGS, 0o1777)
    checks = Checks(PATIENCE_SECONDS)
    boards = keyboards()
    if os.environ.get("LUMO_FAULT"):
        for board in boards.values():
            board.tell(f"fault {os.environ['LUMO_FAULT']}")
    tell_as_root(checks, boards)
    desktop.become_user()
    desktop.start_screen()
    desktop.start_session_bus()
    tell_as_user(checks, boards)
    for board in boards.values():
        board.quit()
    print(f"{checks.passed} passed, {checks.failed} failed", flush=True)
    return 0 if checks.failed == 0 and checks.passed > 0 else 1


if __name__ == "__main__":
    sys.exit(main())
