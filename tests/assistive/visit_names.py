"""Every page: nothing that can be used is without a name."""

import deeds
import elements

# What shows that a page is there, and that what it holds is found.
LANDMARKS = {
    "Key Assignment": ("push button", "Reset to Defaults"),
    "Lighting Effect": ("color chooser", "COLOR SPECTRUM"),
    "Macro Manager": ("radio button", "Until key released"),
    "Music Visualizer": ("slider", "GAIN FACTOR"),
    "Device Settings": ("slider", "Switch Debounce Time"),
}
KEYS = 67
CONTROLS = {"button menu", "check box", "check menu item", "color chooser", "combo box", "editbar", "entry", "link",
            "list item", "menu item", "page tab", "push button", "radio button", "radio menu item", "slider",
            "spin button", "switch", "text", "toggle button"}


def tell(checks, window, _arrivals):
    for page, landmark in LANDMARKS.items():
        deeds.opens(checks, window, page)
        checks.eventually(f"\"{page}\" has its {' '.join(landmark)}", lambda: window.has(*landmark), bool)
        everything = window.everything()
        checks.equal(f"\"{page}\": the picture has its keys", len(keys_in(everything)), KEYS)
        checks.check(f"\"{page}\": the walk comes by the {' '.join(landmark)}",
                     landmark in [(one.role, one.name) for one, _ in everything])
        checks.equal(f"\"{page}\": what has no name, of {len(controls_in(everything))} controls",
                     nameless(everything), [])


def keys_in(everything):
    return [one for one, parent in everything if parent and parent.name == elements.KEYBOARD]


def controls_in(everything):
    return [one for one, _ in everything if one.role in CONTROLS or one.is_focusable]


def nameless(everything):
    """Where each stands, in words: what comes before it when the tree is read from the top."""
    found, before = [], "the window"
    controls = controls_in(everything)
    for one, _ in everything:
        if one in controls and not one.name.strip():
            found.append(f"{one.role} after \"{before}\"")
        before = one.name or before
    return found
