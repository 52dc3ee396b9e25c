"""The screen's own word on a window, and keys as from a keyboard, both quick enough to time what lies between them."""

import ctypes
import os
import time

IS_VIEWABLE = 2
POLL_SECONDS = 0.002


class WindowAttributes(ctypes.Structure):
    """XWindowAttributes of the X library."""
    _fields_ = ([(name, ctypes.c_int) for name in ("x", "y", "width", "height", "border_width", "depth")] +
                [("visual", ctypes.c_void_p), ("root", ctypes.c_ulong)] +
                [(name, ctypes.c_int) for name in ("class_", "bit_gravity", "win_gravity", "backing_store")] +
                [("backing_planes", ctypes.c_ulong), ("backing_pixel", ctypes.c_ulong), ("save_under", ctypes.c_int),
                 ("colormap", ctypes.c_ulong), ("map_installed", ctypes.c_int), ("map_state", ctypes.c_int),
                 ("all_event_masks", ctypes.c_long), ("your_event_mask", ctypes.c_long),
                 ("do_not_propagate_mask", ctypes.c_long), ("override_redirect", ctypes.c_int),
                 ("screen", ctypes.c_void_p)])


@ctypes.CFUNCTYPE(ctypes.c_int, ctypes.c_void_p, ctypes.c_void_p)
def pass_over(_display, _error):
    """A window may be gone before it is asked for; the library would end the process for that."""
    return 0


class Screen:
    def __init__(self):
        self._x = ctypes.CDLL("libX11.so.6")
        self._test = ctypes.CDLL("libXtst.so.6")
        self._x.XOpenDisplay.restype = ctypes.c_void_p
        self._x.XStringToKeysym.restype = ctypes.c_ulong
        self._x.XSetErrorHandler(pass_over)
        self._display = ctypes.c_void_p(self._x.XOpenDisplay(os.environ["DISPLAY"].encode()))
        if not self._display:
            raise RuntimeError("the screen cannot be reached")

    def press(self, *keys):
        """Presses all, lets go of all. Returns the time just before."""
        codes = [self._x.XKeysymToKeycode(self._display, ctypes.c_ulong(self._x.XStringToKeysym(key.encode())))
                 for key in keys]
        begin = time.monotonic()
        for code, is_down in [(code, 1) for code in codes] + [(code, 0) for code in reversed(codes)]:
            self._test.XTestFakeKeyEvent(self._display, ctypes.c_uint(code), is_down, ctypes.c_ulong(0))
        self._x.XSync(self._display, 0)
        return begin

    def shows(self, window):
        found = WindowAttributes()
        return bool(self._x.XGetWindowAttributes(self._display, ctypes.c_ulong(window), ctypes.byref(found))
                    and found.map_state == IS_VIEWABLE)

    def seconds_until_gone(self, window, since, patience_seconds=60):
        """Asks every few milliseconds."""
        while self.shows(window) and time.monotonic() - since < patience_seconds:
            time.sleep(POLL_SECONDS)
        return time.monotonic() - since
