"""What every keyboard's chapter begins with and what an effect looks like on the wire."""

import os

import expected
import hidraw
from screen import Screen

DISCONNECTED = "Simulated / Disconnected"
HANDSHAKE_LINE = "[VexaProtocol] Handshake verified with hardware!"
LAUNCHED = "[General]\nVexaLumoHasLaunchedBefore=true\n"
STILL = "Fixed_on (Static)"  # an effect that does not move: nothing of it is painted again and again
QUITS_WITHIN_MS = 500
MS = 1000


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


def connects(checks, window, application, keyboard, times=1):
    checks.eventually(f"the header reads \"{keyboard.name} (Connected)\"", window.header,
                      lambda texts: f"{keyboard.name} (Connected)" in texts)
    checks.eventually("the status reads \"Connected & Authenticated\"", window.status,
                      lambda texts: texts[:1] == ["Connected & Authenticated"])
    checks.eventually(f"the console says \"{HANDSHAKE_LINE}\"",
                      lambda: application.console_lines().count(HANDSHAKE_LINE), lambda lines: lines == times)


def disconnects(checks, window):
    checks.eventually("the header reads \"Simulated / Disconnected\"", window.header,
                      lambda texts: DISCONNECTED in texts)
    checks.eventually("the status tells of the disconnect", window.status,
                      lambda texts: texts[:1] == ["Keyboard disconnected. Running in preview mode."])


def reads(checks, window, status):
    checks.eventually(f"the status reads \"{status}\"", window.status, lambda texts: texts[:1] == [status])


def chooses_raindrops(checks, window):
    checks.check("the row \"Raindrops\" can be chosen", window.choose("Raindrops"))
    checks.eventually("the status reads \"Applied: Raindrops\"", window.status,
                      lambda texts: texts[:1] == ["Applied: Raindrops"])
    is_marked(checks, window, "Raindrops")


def quits(checks, application):
    """Ctrl+Q, after which the window is gone in no time; the process may follow later."""
    screen, window = Screen(), int(application.windows()[0])
    checks.check("the screen shows the window", screen.shows(window))
    ms = 1000 * screen.seconds_until_gone(window, screen.press("Control_L", "q"))
    checks.check(f"the window goes within {QUITS_WITHIN_MS} ms of Ctrl+Q: {ms:.0f} ms", ms < QUITS_WITHIN_MS)
    checks.check("no other one is left", not application.windows())


def is_marked(checks, window, effect):
    checks.eventually(f"the row \"{effect}\" alone is marked", window.effects,
                      lambda effects: [name for name, chosen in effects.items() if chosen] == [effect])


def handshake_is_one_pair(checks, transfers):
    checks.equal("the handshake is one set and one get", [one.direction for one in transfers], ["set", "get"])
    query, answer = transfers
    checks.same_bytes("the query is 06 82 01 00 01 00 06 and zeros", query.bytes, expected.HANDSHAKE_QUERY)
    checks.check("both were accepted", query.accepted and answer.accepted)
    checks.check("the answer is fetched 30 ms later at the earliest", answer.us - query.us >= 30 * MS, f"{transfers}")


def effect_is_four_sets_and_two_gets(checks, transfers, colours=expected.COLOUR_BLOCK_WRITE,
                                     parameters=expected.PARAMETER_BLOCK_WRITE):
    order = ["set", "get", "set", "set", "get", "set"]
    checks.equal("the effect is four sets and two gets", [one.direction for one in transfers], order)
    checks.check("all were accepted", all(one.accepted for one in transfers), f"{transfers}")
    checks.check("all have 520 bytes", all(one.length == 520 for one in transfers), f"{transfers}")
    sets = [one for one in transfers if one.direction == "set"]
    gaps = [after.us - before.us for before, after in zip(sets, sets[1:])]
    checks.check("at least 20 ms between sets", all(gap >= 20 * MS for gap in gaps), f"{gaps} microseconds")
    bytes_are_right(checks, [one.bytes for one in transfers], colours, parameters)


def bytes_are_right(checks, reports, wanted_colours, wanted_parameters):
    colours_asked, colours, colours_written, parameters_asked, parameters, parameters_written = reports
    checks.same_bytes("the colour block is asked for", colours_asked, expected.COLOUR_BLOCK_READ)
    checks.same_bytes("the colour block is written as it must be", colours_written, wanted_colours)
    checks.same_bytes("the parameter block is asked for", parameters_asked, expected.PARAMETER_BLOCK_READ)
    checks.same_bytes("the parameter block is written as it must be", parameters_written, wanted_parameters)
    for what, before, after, patched in (
            ("colour", colours, colours_written, expected.COLOUR_BLOCK_PATCHED),
            ("parameter", parameters, parameters_written, expected.parameter_block_patched(wanted_parameters[18]))):
        changed = {at for at in range(520) if before[at:at + 1] != after[at:at + 1]}
        checks.check(f"no other byte of the {what} block differs", changed <= patched, f"{sorted(changed - patched)}")


def registers_hold(checks, keyboard, what, parameters, colours):
    """A block read back carries the read command, which is the write command with its top bit set."""
    held = keyboard.registers()
    checks.same_bytes(f"{what}: the keyboard's parameter block", held["parameters"], as_read(parameters))
    checks.same_bytes(f"{what}: the keyboard's colour block", held["colours"], as_read(colours))


def as_read(report):
    return report[:1] + bytes([report[1] | 0x80]) + report[2:]
