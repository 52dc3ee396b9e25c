"""A keyboard of ours before the kernel: the program that is it, and the log it writes."""

import subprocess

import transfers


class Keyboard:
    """One program and one log. Started as root; unplugged at first."""

    def __init__(self, program, log, *, vendor, product, name):
        self.name = name
        self._log = log
        self._process = subprocess.Popen(
            [program, "--log", log, "--vid", vendor, "--pid", product, "--name", name],
            stdin=subprocess.PIPE, stdout=subprocess.PIPE, text=True, bufsize=1)

    def tell(self, command):
        """Sends one command line and returns the rest of its "ok" answer."""
        self._process.stdin.write(command + "\n")
        self._process.stdin.flush()
        answer = self._process.stdout.readline().rstrip("\n")
        if not answer.startswith("ok"):
            raise RuntimeError(f"the keyboard answered {answer!r} to {command!r}")
        return answer[len("ok"):].strip()

    def plug(self):
        self.tell("plug")

    def unplug(self):
        self.tell("unplug")

    def registers(self):
        """Parameter block, colour block and key table as the keyboard holds them."""
        words = self.tell("registers").split()
        return {name: bytes.fromhex(held) for name, held in zip(words[::2], words[1::2])}

    def transfers(self):
        """Every transfer so far, oldest first."""
        return transfers.read(self._log)

    def quit(self):
        self.tell("quit")
        self._process.wait()
