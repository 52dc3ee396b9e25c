"""visit.py DEMO VISIT FOLDER: one visit to the demo's window by way of the accessibility bus, with nothing known but
names, roles and actions. Ends with 0 when every check passed."""

import sys

import deeds
import demo
import visit_keys
import visit_lighting
import visit_macros
import visit_music
import visit_names
import visit_settings
import wire
from arrivals import Arrivals
from checks import Checks
from window import Window

PATIENCE_SECONDS = 30
VISITS = {"keys": visit_keys.tell, "lighting": visit_lighting.tell, "macros": visit_macros.tell,
          "music": visit_music.tell, "names": visit_names.tell, "settings": visit_settings.tell}


def visit(checks, program, tell, folder):
    application, keyboard = demo.start(program, folder)
    window, arrivals = Window(application), Arrivals(keyboard)
    try:
        deeds.connects(checks, window, application, keyboard)
        wire.handshake_is_one_pair(checks, arrivals.take(checks, 2))
        demo.is_welcomed(checks, window)
        tell(checks, window, arrivals)
        arrivals.end(checks)
        demo.is_well(checks, application)
    finally:
        application.stop()
        print("\n".join(application.console_lines()))


def main(program, name, folder):
    checks = Checks(PATIENCE_SECONDS)
    checks.chapter(name, lambda: visit(checks, program, VISITS[name], folder))
    print(f"{checks.passed} passed, {checks.failed} failed", flush=True)
    return 0 if checks.failed == 0 and checks.passed > 0 else 1


if __name__ == "__main__":
    sys.exit(main(*sys.argv[1:]))
