"""The window as assistive technology sees it. Every question goes to the application: nothing is remembered."""

import elements
from accessibility import CONTROL, SPACE, Bus


class Window:
    def __init__(self, application):
        self._application = application
        self._bus = Bus()

    def status(self):
        """The texts at the window's foot, left to right."""
        bar = self._find("status bar")
        return elements.texts(self._bus, bar.children) if bar else []

    def header(self):
        """The texts in the window's header, left to right."""
        title = self._find("label", "VEXA LUMO 65")
        return elements.texts(self._bus, elements.beside(self._bus, title)) if title else []

    def rows(self, of=""):
        """{name: chosen or not} of the page's list of that name; most have none."""
        rows = self._find("list", of)
        return {row.name: row.is_chosen for row in elements.read(self._bus, rows.children)} if rows else {}

    def choose(self, effect):
        """Does what a click on that row does. True when the row took it."""
        return self._press("list item", effect)

    def choose_often(self, effect, times):
        """As many clicks on that row, as fast as they can be told. How many it took."""
        row = self._find("list item", effect)
        return elements.press_often(self._bus, row, times) if row else 0

    def press(self, name):
        """Does what a click on that button does."""
        return self._press("push button", name)

    def press_radio(self, name):
        return self._press("radio button", name)

    def press_key(self, label):
        key = self._key(label)
        return key is not None and elements.press(self._bus, key)

    def focus_key(self, label):
        key = self._key(label)
        return key is not None and elements.focus(self._bus, key)

    def focused_keys(self):
        return [key.name for key in self._keys() if key.is_focused]

    def press_control_space(self):
        """On what has the focus."""
        return self._bus.press_key(SPACE, CONTROL)

    def press_tab(self, name):
        return self._press("page tab", name)

    def has_key(self, name):
        """True when a key of the picture is called so."""
        return any(key.name == name for key in self._keys())

    def selected_keys(self):
        return [key.name for key in self._keys() if key.is_chosen]

    def is_chosen(self, name):
        """True for a button that is there and chosen."""
        button = self._find("push button", name)
        return button is not None and button.is_chosen

    def has(self, role, name):
        return self._find(role, name) is not None

    def has_button(self, name):
        return self.has("push button", name)

    def says(self, text):
        """True when that text stands somewhere in the window."""
        return self.has("label", text)

    def dialogs(self):
        """The names of the questions that lie above the window."""
        frame = self._frame()
        below = elements.levels(self._bus, frame.children) if frame else []
        return [one.name for level in below for one in level if one.role == "dialog"]

    def slide(self, name, level):
        """One use of a slider, which ends at that level. True when the slider took it."""
        slider = self._find("slider", name)
        return slider is not None and elements.set_value(self._bus, slider, level)

    def level(self, name):
        slider = self._find("slider", name)
        return elements.value(self._bus, slider) if slider else None

    def everything(self):
        """(element, its parent) for all that is showing."""
        frame = self._frame()
        return list(elements.inside(self._bus, frame)) if frame else []

    def _press(self, role, name):
        found = self._find(role, name)
        return found is not None and elements.press(self._bus, found)

    def _key(self, label):
        return next((key for key in self._keys() if key.name == label), None)

    def _keys(self):
        keyboard = self._find_where(lambda one: one.name == elements.KEYBOARD)
        return elements.read(self._bus, keyboard.children) if keyboard else []

    def _find(self, role, name=None):
        return self._find_where(lambda one: one.role == role and name in (None, one.name))

    def _find_where(self, wanted):
        frame = self._frame()
        return elements.find(self._bus, frame.children, wanted) if frame else None

    def _frame(self):
        """The window itself, absent while there is none."""
        if self._application.ended() is not None:
            raise RuntimeError(f"the application ended with status {self._application.ended()}")
        root = self._bus.application(self._application.pid)
        return elements.find(self._bus, [root], is_frame) if root else None


def is_frame(element):
    return element.role == "frame" and element.name == "Vexa Lumo 65"
