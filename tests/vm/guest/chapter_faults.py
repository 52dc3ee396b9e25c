"""What comes of every fault, played by a program without a window over the real HID layer. Told as root."""

import os
import subprocess

KEYBOARD = "lumo-usbip-keyboard"


def tell(checks, bin_folder, logs):
    """LUMO_FAULT_EVERY: only each so-manieth case of the table, 1 for all of them."""
    every = os.environ.get("LUMO_FAULT_EVERY", "1")
    program = subprocess.Popen([f"{bin_folder}/lumo-fault-matrix", f"{bin_folder}/{KEYBOARD}", logs,
                                f"{logs}/faults.md", every], stdout=subprocess.PIPE, text=True, bufsize=1)
    case, wrong = None, []
    for line in program.stdout:
        if line.startswith((" ", "\t")):
            wrong.append(line.strip())
            continue
        count(checks, case, wrong)
        case, wrong = line.rstrip("\n"), []
    count(checks, case, wrong)
    checks.equal("the fault matrix came to its end", program.wait(), 0)


def count(checks, case, wrong):
    """`case` is a line of the program's: its outcome, two blanks, its name."""
    if case and case.startswith(("PASS  ", "FAIL  ")):
        checks.check(case[6:], case.startswith("PASS"), "; ".join(wrong))
