"""The accessibility bus. The questions about many elements are all sent before the first answer is awaited: a window
that paints frame after frame on an emulated processor answers once a frame, however much it was asked."""

import gi

gi.require_version("Gio", "2.0")
from gi.repository import Gio, GLib  # noqa: E402  (the version has to be settled first)

ACCESSIBLE = "org.a11y.atspi.Accessible"
ACTION = "org.a11y.atspi.Action"
COMPONENT = "org.a11y.atspi.Component"
VALUE = "org.a11y.atspi.Value"
DEVICES = "org.a11y.atspi.DeviceEventController"
PROPERTIES = "org.freedesktop.DBus.Properties"
REGISTRY = "org.a11y.atspi.Registry"
ROOT = "/org/a11y/atspi/accessible/root"
DEVICES_PATH = "/org/a11y/atspi/registry/deviceeventcontroller"
SYMBOL, HOLD_MODIFIERS, LET_GO_OF_MODIFIERS = 3, 5, 6  # what a made-up key event can be
CONTROL, SPACE = 4, 0x20  # a modifier, and a key
PATIENCE_MS = 60_000


class Bus:
    def __init__(self):
        session = Gio.bus_get_sync(Gio.BusType.SESSION)
        address, = session.call_sync("org.a11y.Bus", "/org/a11y/bus", "org.a11y.Bus", "GetAddress", None, None,
                                     Gio.DBusCallFlags.NONE, PATIENCE_MS, None)
        flags = Gio.DBusConnectionFlags.AUTHENTICATION_CLIENT | Gio.DBusConnectionFlags.MESSAGE_BUS_CONNECTION
        self._connection = Gio.DBusConnection.new_for_address_sync(address, flags, None, None)

    def ask(self, questions):
        """Each question is ((bus name, path), interface, method, arguments or None). The answers stand in the order
        of the questions; None where there was none, as from an element that has gone."""
        answers = {}

        def take(connection, result, at):
            try:
                answers[at] = connection.call_finish(result).unpack()
            except GLib.Error:
                answers[at] = None

        for at, ((owner, path), interface, method, arguments) in enumerate(questions):
            self._connection.call(owner, path, interface, method, arguments, None, Gio.DBusCallFlags.NONE, PATIENCE_MS,
                                  None, take, at)
        while len(answers) < len(questions):
            GLib.MainContext.default().iteration(True)
        return [answers[at] for at in range(len(questions))]

    def ask_one(self, reference, interface, method, arguments=None):
        return self.ask([(reference, interface, method, arguments)])[0]

    def application(self, pid):
        """Where the elements of that process begin, absent while it has none."""
        listed = self.ask_one((REGISTRY, ROOT), ACCESSIBLE, "GetChildren")
        applications = listed[0] if listed else []
        owners = self.ask([(("org.freedesktop.DBus", "/org/freedesktop/DBus"), "org.freedesktop.DBus",
                            "GetConnectionUnixProcessID", GLib.Variant("(s)", (owner,))) for owner, _ in applications])
        return next((reference for reference, owner in zip(applications, owners) if owner == (pid,)), None)

    def press_key(self, symbol, modifiers):
        """Presses a key as if by hand; whoever has the focus gets it. True when all of it was sent."""
        events = ((modifiers, HOLD_MODIFIERS), (symbol, SYMBOL), (modifiers, LET_GO_OF_MODIFIERS))
        return None not in [self.ask_one((REGISTRY, DEVICES_PATH), DEVICES, "GenerateKeyboardEvent",
                                         GLib.Variant("(isu)", (code, "", kind))) for code, kind in events]
