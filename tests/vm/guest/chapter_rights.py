"""Who may talk to the keyboard: our rule on a real device manager. Told as root, before anybody has logged in."""

import errno
import pwd

import hidraw
import stories


def tell(checks, keyboard):
    nodes = stories.plug(checks, keyboard)
    user = pwd.getpwnam("nobody").pw_uid
    checks.check("the configuration interface is tagged for the person at the screen",
                 "uaccess" in hidraw.tags(nodes[hidraw.CONFIGURATION]))
    checks.check("the typing interface is not", "uaccess" not in hidraw.tags(nodes[hidraw.TYPING]))
    checks.equal("the person's rights", hidraw.owner_and_mode(nodes[hidraw.CONFIGURATION])[0], user)
    checks.equal("nobody but root opens the typing interface", hidraw.owner_and_mode(nodes[hidraw.TYPING]), (0, 0o600))
    stray_report_is_noticed(checks, keyboard, nodes[hidraw.TYPING])
    stories.unplug(checks, keyboard)


def stray_report_is_noticed(checks, keyboard, node):
    """That nothing went to the typing interface is worth something only because this would be seen."""
    checks.equal("a report to the typing interface is refused", hidraw.send_feature(node, b"\x06\x82\x01"), errno.EPIPE)
    checks.equal("and stands in the log", [(one.bytes.hex(), one.accepted) for one in keyboard.transfers()],
                 [("068201", False)])
