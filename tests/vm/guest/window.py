"""The window as assistive technology sees it. Every question goes to the application: nothing is remembered."""

import functools

import gi

gi.require_version("Atspi", "2.0")
from gi.repository import Atspi, GLib  # noqa: E402  (the version has to be settled first)

HEADER_HEIGHT = 45
STATUS_BAR_HEIGHT = 28


def tolerant(otherwise):
    """Whatever is asked may have gone in the meantime; the next question finds what is there instead."""
    def mark(question):
        @functools.wraps(question)
        def ask(*arguments):
            try:
                return question(*arguments)
            except (GLib.Error, StopIteration, AttributeError):
                return otherwise
        return ask
    return mark


class Window:
    def __init__(self, application):
        self._application = application

    @tolerant([])
    def status(self):
        """The texts at the window's foot, left to right."""
        return self._texts(lambda top, bottom, height: top >= height - STATUS_BAR_HEIGHT)

    @tolerant([])
    def header(self):
        """The texts in the window's header, left to right."""
        return self._texts(lambda top, bottom, height: bottom <= HEADER_HEIGHT)

    @tolerant({})
    def effects(self):
        """{name: chosen or not} of the effect rows."""
        return {row.get_name(): is_chosen(row) for row in self._rows()}

    @tolerant(False)
    def choose(self, name):
        """Does what a click on that row does. True when the row took it."""
        row = next(row for row in self._rows() if row.get_name() == name)
        return Atspi.Action.do_action(row.get_action_iface(), 0)

    def _rows(self):
        return [one for one in self._elements() if one.get_role() == Atspi.Role.LIST_ITEM]

    def _texts(self, stands_there):
        frame = self._frame()
        if frame is None:
            return []
        whole = extents(frame)
        found = []
        for one in descendants(frame):
            if one.get_child_count() > 0 or not one.get_name():
                continue
            place = extents(one)
            top = place.y - whole.y
            if place.height > 0 and stands_there(top, top + place.height, whole.height):
                found.append((place.x, one.get_name()))
        return [name for _, name in sorted(found)]

    def _elements(self):
        frame = self._frame()
        return [] if frame is None else list(descendants(frame))

    def _frame(self):
        if self._application.ended() is not None:
            raise RuntimeError(f"the application ended with status {self._application.ended()}")
        desktop = Atspi.get_desktop(0)
        desktop.clear_cache()
        for application in children(desktop):
            application.set_cache_mask(Atspi.Cache.NONE)
            if application.get_process_id() != self._application.pid:
                continue
            for frame in children(application):
                if frame.get_name() == "Vexa Lumo 65":
                    return frame
        return None


def children(accessible):
    every = (accessible.get_child_at_index(index) for index in range(accessible.get_child_count()))
    return [child for child in every if child is not None]


def descendants(accessible):
    for child in children(accessible):
        if not child.get_state_set().contains(Atspi.StateType.SHOWING):
            continue
        yield child
        yield from descendants(child)


def extents(accessible):
    return accessible.get_component_iface().get_extents(Atspi.CoordType.SCREEN)


def is_chosen(accessible):
    states = accessible.get_state_set()
    return states.contains(Atspi.StateType.SELECTED) or states.contains(Atspi.StateType.CHECKED)

