"""What a keyboard was sent and asked for, as the log of one of ours has it."""

import json


class Transfer:
    def __init__(self, line):
        fields = json.loads(line)
        self.us = fields["us"]
        self.direction = fields["dir"]
        self.accepted = fields["ok"]
        self.length = fields["len"]
        self.bytes = bytes.fromhex(fields["hex"])

    def __repr__(self):
        return f"{self.direction} {self.bytes[:8].hex(' ')}… ({self.length}{'' if self.accepted else ', refused'})"


def read(path):
    """Every transfer so far, oldest first; a line still being written is not among them."""
    with open(path, encoding="utf-8") as log:
        return [Transfer(line) for line in log.read().split("\n")[:-1]]
