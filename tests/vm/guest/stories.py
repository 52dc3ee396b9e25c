"""What every keyboard's chapter begins and ends with."""

import os

import deeds
import hidraw
import wire
from screen import Screen

DISCONNECTED = "Simulated / Disconnected"
GONE = "Keyboard disconnected. Running in preview mode."
FALLBACK = "Connected (Simulation Fallback)"
LAUNCHED = "[General]\nVexaLumoHasLaunchedBefore=true\n"
STILL = "Fixed_on (Static)"  # an effect that does not move: nothing of it is painted again and again
QUITS_WITHIN_MS = 500


def plug(checks, keyboard):
    keyboard.plug()
    return checks.eventually("the kernel has both interfaces and the device manager knows them",
                             hidraw.settled, lambda nodes: len(nodes) == 2)


def unplug(checks, keyboard):
    keyboard.unplug()
    checks.eventually("the kernel has let go of both interfaces", hidraw.nodes, lambda nodes: not nodes)


def starts_without_keyboard(checks, window):
    checks.eventually("without a keyboard the header reads \"Simulated / Disconnected\"", window.header,
                      lambda texts: DISCONNECTED in texts)
    checks.equal("and the status \"Ready\"", window.status()[:1], ["Ready"])


def launch_is_over(checks, window):
    """Nothing here asks a user for grants: the prompts of a launch are gone as soon as they came."""
    checks.eventually("no prompt is left to be answered", window.dialogs, lambda names: not names)
    checks.eventually("both lights of the status bar say \"Granted\"", window.status,
                      lambda texts: texts.count("Granted") == 2)
    checks.equal("the launch is remembered in the user's configuration folder", preferences(), LAUNCHED)


def preferences_path():
    return f"{os.environ['HOME']}/.config/vexa-lumo-65/preferences.ini"


def preferences():
    with open(preferences_path(), encoding="utf-8") as file:
        return file.read()


def disconnects(checks, window):
    checks.eventually("the header reads \"Simulated / Disconnected\"", window.header,
                      lambda texts: DISCONNECTED in texts)
    deeds.reads(checks, window, GONE)


def quits(checks, application):
    """Ctrl+Q, after which the window is gone in no time; the process may follow later."""
    screen, window = Screen(), int(application.windows()[0])
    checks.check("the screen shows the window", screen.shows(window))
    ms = 1000 * screen.seconds_until_gone(window, screen.press("Control_L", "q"))
    checks.check(f"the window goes within {QUITS_WITHIN_MS} ms of Ctrl+Q: {ms:.0f} ms", ms < QUITS_WITHIN_MS)
    checks.check("no other one is left", not application.windows())


def registers_hold(checks, keyboard, what, parameters, colours):
    """A block read back carries the read command, which is the write command with its top bit set."""
    held = keyboard.registers()
    checks.same_bytes(f"{what}: the keyboard's parameter block", held["parameters"], wire.as_read(parameters))
    checks.same_bytes(f"{what}: the keyboard's colour block", held["colours"], wire.as_read(colours))
