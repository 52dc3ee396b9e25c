"""Some of the faults as the window shows them; all are played without a window by lumo-fault-matrix."""

import deeds
import hidraw
import stories


def tell(checks, window, application, keyboard, another):
    fails_the_handshake(checks, window, keyboard)
    loses_a_command(checks, window, keyboard, "set 04 refuse once", "a refused parameter block")
    loses_a_command(checks, window, keyboard, "set 04 hang once", "a parameter block without an answer for 5 s")
    takes_a_short_answer(checks, window, keyboard)
    goes_within_a_command(checks, window, keyboard)
    goes_within_the_handshake(checks, window, keyboard)
    try:
        another_comes(checks, window, application, keyboard, another)
    finally:
        another.unplug()


def fails_the_handshake(checks, window, keyboard):
    keyboard.tell("fault get 82 wrong once")
    stories.plug(checks, keyboard)
    deeds.reads(checks, window, stories.FALLBACK)
    checks.check("and the header names the keyboard", f"{keyboard.name} (Connected)" in window.header())
    deeds.chooses_raindrops(checks, window)  # reports are sent all the same


def loses_a_command(checks, window, keyboard, fault, what):
    keyboard.tell(f"fault {fault}")
    checks.check(f"before {what} an effect can be chosen", window.choose(stories.STILL))
    deeds.reads(checks, window, "Hardware command failed")
    deeds.is_marked(checks, window, stories.STILL)
    deeds.chooses_raindrops(checks, window)


def takes_a_short_answer(checks, window, keyboard):
    """The write is made of what was asked for, padded; the keyboard holds it then."""
    keyboard.tell("fault get 84 short 1 once")
    checks.check("before an answer of one byte an effect can be chosen", window.choose(stories.STILL))
    deeds.reads(checks, window, f"Applied: {stories.STILL}")
    deeds.chooses_raindrops(checks, window)


def goes_within_a_command(checks, window, keyboard):
    keyboard.tell("fault set 0a vanish once")
    checks.check("before the keyboard goes an effect can be chosen", window.choose(stories.STILL))
    is_gone(checks, window, {stories.GONE, "Hardware command failed"})
    checks.check("in the preview an effect can be chosen", window.choose("Raindrops"))
    deeds.reads(checks, window, "Previewing Raindrops (Simulated)")


def goes_within_the_handshake(checks, window, keyboard):
    """Whichever is told last stays to be read."""
    keyboard.tell("fault get 82 vanish once")
    keyboard.plug()
    is_gone(checks, window, {stories.GONE, stories.FALLBACK})


def another_comes(checks, window, application, keyboard, another):
    """The last one that comes is held, and only its going is told of."""
    stories.plug(checks, keyboard)
    deeds.connects(checks, window, application, keyboard, times=1)
    another.plug()
    deeds.connects(checks, window, application, another, times=2)
    keyboard.unplug()
    checks.eventually("the kernel has let go of the first one", hidraw.count, lambda count: count == 2)
    deeds.chooses_raindrops(checks, window)
    checks.check("the header still names the second one", f"{another.name} (Connected)" in window.header())
    stories.unplug(checks, another)
    stories.disconnects(checks, window)


def is_gone(checks, window, texts):
    checks.eventually("the header reads \"Simulated / Disconnected\"", window.header,
                      lambda header: stories.DISCONNECTED in header)
    checks.eventually("the kernel has let go of it", hidraw.count, lambda count: count == 0)
    checks.eventually("the status tells of it", window.status, lambda status: status and status[0] in texts)
