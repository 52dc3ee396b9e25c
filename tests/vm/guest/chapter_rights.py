"""Who may talk to the keyboard: our rule on a real device manager. Told as root, before anybody has logged in."""

import errno
import os
import pwd
import subprocess

import hidraw
import stories


FILES = os.path.dirname(os.environ["LUMO_BIN"])
RULE = "/etc/udev/rules.d/70-vexa-lumo-65.rules"


def tell(checks, keyboard):
    nodes = stories.plug(checks, keyboard)
    user = pwd.getpwnam("nobody").pw_uid
    checks.equal("what the device manager was told of the interfaces",
                 {kind: hidraw.known("VEXA_LUMO_65_INTERFACE", node) for kind, node in nodes.items()},
                 {hidraw.CONFIGURATION: "configuration", hidraw.TYPING: "other"})
    checks.check("the configuration interface is tagged for the person at the screen",
                 "uaccess" in hidraw.tags(nodes[hidraw.CONFIGURATION]))
    checks.check("the typing interface is not", "uaccess" not in hidraw.tags(nodes[hidraw.TYPING]))
    checks.equal("the person's rights", hidraw.owner_and_mode(nodes[hidraw.CONFIGURATION])[0], user)
    checks.equal("nobody but root opens the typing interface", hidraw.owner_and_mode(nodes[hidraw.TYPING]), (0, 0o600))
    stray_report_is_noticed(checks, keyboard, nodes[hidraw.TYPING])
    package_comes_and_goes(checks, nodes[hidraw.CONFIGURATION], user)
    stories.unplug(checks, keyboard)


def package_comes_and_goes(checks, node, user):
    """What the package does when it is removed and installed, with the keyboard plugged in meanwhile."""
    os.rename(RULE, RULE + ".away")
    run_maintainer_script("postrm", "remove")
    checks.equal("the package removed, nobody but root opens it", hidraw.owner_and_mode(node), (0, 0o600))
    checks.check("nor will the next to log in", "uaccess" not in hidraw.tags(node))
    os.rename(RULE + ".away", RULE)
    run_maintainer_script("postinst", "configure")
    checks.equal("the package installed, the person does again", hidraw.owner_and_mode(node)[0], user)


def run_maintainer_script(name, argument):
    subprocess.run([f"{FILES}/{name}", argument], check=True)
    subprocess.run(["udevadm", "settle"], check=True)


def stray_report_is_noticed(checks, keyboard, node):
    """That nothing went to the typing interface is worth something only because this would be seen."""
    checks.equal("a report to the typing interface is refused", hidraw.send_feature(node, b"\x06\x82\x01"), errno.EPIPE)
    checks.equal("and stands in the log", [(one.bytes.hex(), one.accepted) for one in keyboard.transfers()],
                 [("068201", False)])
