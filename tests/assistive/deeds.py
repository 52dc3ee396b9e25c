"""What is done in the window, and what the window says then."""

HANDSHAKE_LINE = "[VexaProtocol] Handshake verified with hardware!"


def connects(checks, window, application, keyboard, times=1):
    checks.eventually(f"the header reads \"{keyboard.name} (Connected)\"", window.header,
                      lambda texts: f"{keyboard.name} (Connected)" in texts)
    checks.eventually("the status reads \"Connected & Authenticated\"", window.status,
                      lambda texts: texts[:1] == ["Connected & Authenticated"])
    checks.eventually(f"the console says \"{HANDSHAKE_LINE}\"",
                      lambda: application.console_lines().count(HANDSHAKE_LINE), lambda lines: lines == times)


def reads(checks, window, status):
    checks.eventually(f"the status reads \"{status}\"", window.status, lambda texts: texts[:1] == [status])


def says(checks, window, text):
    checks.eventually(f"the window says \"{text}\"", lambda: window.says(text), bool)


def has_button(checks, window, name):
    checks.eventually(f"a button reads \"{name}\"", lambda: window.has_button(name), bool)


def opens(checks, window, page):
    checks.check(f"the page \"{page}\" can be chosen", window.press_tab(page))


def presses(checks, window, button):
    checks.check(f"the button \"{button}\" can be pressed", window.press(button))


def chooses_raindrops(checks, window):
    checks.check("the row \"Raindrops\" can be chosen", window.choose("Raindrops"))
    reads(checks, window, "Applied: Raindrops")
    is_marked(checks, window, "Raindrops")


def is_marked(checks, window, row):
    checks.eventually(f"the row \"{row}\" alone is marked", window.rows,
                      lambda rows: [name for name, chosen in rows.items() if chosen] == [row])
