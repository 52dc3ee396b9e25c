"""The elements of the window: what they say of themselves, the ways through them, and how they are used."""

from gi.repository import GLib

from accessibility import ACCESSIBLE, ACTION, COMPONENT, PROPERTIES, VALUE

KEYBOARD = "Keyboard"
CHECKED, FOCUSABLE, FOCUSED, SELECTED, SHOWING = 1 << 4, 1 << 11, 1 << 12, 1 << 23, 1 << 25


class Element:
    """As it was when it was read."""

    def __init__(self, reference, name, role, states, children):
        self.reference = reference
        self.name, = name
        self.role, = role
        self.children, = children
        self.is_showing = bool(states[0][0] & SHOWING)
        self.is_chosen = bool(states[0][0] & (CHECKED | SELECTED))
        self.is_focusable = bool(states[0][0] & FOCUSABLE)
        self.is_focused = bool(states[0][0] & FOCUSED)


def read(bus, references):
    """The elements that are still there and showing."""
    questions = ((PROPERTIES, "Get", GLib.Variant("(ss)", (ACCESSIBLE, "Name"))),
                 (ACCESSIBLE, "GetRoleName", None), (ACCESSIBLE, "GetState", None), (ACCESSIBLE, "GetChildren", None))
    answers = bus.ask([(reference, *question) for reference in references for question in questions])
    told = zip(references, *(answers[at::len(questions)] for at in range(len(questions))))
    elements = [Element(*parts) for parts in told if None not in parts]
    return [element for element in elements if element.is_showing]


def levels(bus, references):
    """Everything below, level by level, which comes to the window's larger parts early; without the 67 keys."""
    while references:
        elements = read(bus, references)
        yield elements
        references = [child for element in elements if element.name != KEYBOARD for child in element.children]


def inside(bus, element, parent=None):
    """The element and everything in it, the 67 keys too, each with its parent, from the top to the foot."""
    yield element, parent
    for child in read(bus, element.children):
        yield from inside(bus, child, element)


def find(bus, references, wanted):
    return next((one for level in levels(bus, references) for one in level if wanted(one)), None)


def texts(bus, references):
    """Left to right, the names of what has no parts of its own."""
    leaves = [one for level in levels(bus, references) for one in level if one.name and not one.children]
    on_screen = GLib.Variant("(u)", (0,))
    places = bus.ask([(one.reference, COMPONENT, "GetExtents", on_screen) for one in leaves])
    return [name for _, name in sorted((place[0][0], one.name) for place, one in zip(places, leaves) if place)]


def beside(bus, element):
    """What has the same parent, the element itself included."""
    told = bus.ask_one(element.reference, PROPERTIES, "Get", GLib.Variant("(ss)", (ACCESSIBLE, "Parent")))
    listed = told and bus.ask_one(told[0], ACCESSIBLE, "GetChildren")
    return listed[0] if listed else []


def press(bus, element):
    """Does what a click does. True when the element took it."""
    return press_often(bus, element, 1) == 1


def focus(bus, element):
    return do_often(bus, element, "SetFocus", 1) == 1


def press_often(bus, element, times):
    """How many the element took."""
    return do_often(bus, element, "Press", times)


def do_often(bus, element, action, times):
    """Asks for all before the first answer is awaited."""
    told = bus.ask_one(element.reference, ACTION, "GetActions")
    names = [name for name, _, _ in told[0]] if told else []
    if action not in names:
        return 0
    deed = (element.reference, ACTION, "DoAction", GLib.Variant("(i)", (names.index(action),)))
    return bus.ask([deed] * times).count((True,))


def value(bus, element):
    told = bus.ask_one(element.reference, PROPERTIES, "Get", GLib.Variant("(ss)", (VALUE, "CurrentValue")))
    return told[0] if told else None


def set_value(bus, element, wanted):
    arguments = GLib.Variant("(ssv)", (VALUE, "CurrentValue", GLib.Variant("d", wanted)))
    return bus.ask_one(element.reference, PROPERTIES, "Set", arguments) is not None
