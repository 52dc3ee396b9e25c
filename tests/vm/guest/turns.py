"""What the probe inside the application tells of its main loop, see tests/probe."""

LINE_SECONDS = 0.5


class Probe:
    def __init__(self, folder, path):
        self._path = path
        self.environment = {"QT_QPA_GENERIC_PLUGINS": "turnprobe", "QT_PLUGIN_PATH": folder, "LUMO_TURN_PROBE": path}

    def between(self, begin, end):
        """The half seconds that lie wholly between two moments of time.monotonic()."""
        with open(self._path, encoding="ascii") as file:
            told = [Line(line) for line in file.read().split("\n")[:-1]]
        for before, line, after in zip(told, told[1:], [*told[2:], told[-1]] if told else []):
            line.machine_near_ms = max(before.machine_ms, line.machine_ms, after.machine_ms)
        return [line for before, line in zip(told, told[1:]) if begin <= before.at and line.at <= end]


class Line:
    def __init__(self, text):
        at_us, self.turns, longest_us, machine_us = (int(word) for word in text.split())
        self.at = at_us / 1e6
        self.longest_ms = longest_us / 1e3
        self.machine_ms = machine_us / 1e3  # of a thread that only sleeps: the machine itself stood still
        self.machine_near_ms = self.machine_ms  # also in the lines beside it: both end when the machine goes on


def longest_ms(lines):
    return max((line.longest_ms for line in lines), default=0.0)


def machine_ms(lines):
    return max((line.machine_ms for line in lines), default=0.0)
