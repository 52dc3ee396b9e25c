"""What a keyboard is sent, in parts and in order: nothing that comes between two parts is passed over."""


class Arrivals:
    def __init__(self, keyboard):
        self._keyboard = keyboard
        self._taken = 0

    def take(self, checks, count):
        """Waits for the next so many transfers."""
        transfers = checks.eventually(f"{count} transfers arrive", self.waiting, lambda waiting: len(waiting) >= count)
        self._taken += count
        return transfers[:count]

    def end(self, checks):
        checks.equal("and nothing else has ever arrived", self.waiting(), [])

    def waiting(self):
        """What has arrived and was not taken yet."""
        return self._keyboard.transfers()[self._taken:]
