"""The music page: the stream is started and stopped. An effect that is chosen afterwards ends what the stream sent."""

import deeds
import expected_settings
import streaming
import wire

LEVELS_AWAITED = 3


def tell(checks, window, arrivals):
    streaming.opens_the_page(checks, window)
    streaming.starts(checks, window)
    checks.eventually(f"the keyboard is told of {LEVELS_AWAITED} levels", arrivals.waiting,
                      lambda waiting: len(waiting) >= 3 * LEVELS_AWAITED)
    streaming.stops(checks, window)
    deeds.opens(checks, window, "Lighting Effect")
    deeds.chooses_raindrops(checks, window)

    streamed = len(arrivals.waiting()) - 6
    checks.check("what the stream sent is whole exchanges", streamed % 3 == 0, f"{streamed} transfers")
    streaming.levels_arrive(checks, arrivals, expected_settings.LEVELS[:streamed // 3])
    wire.effect_is_four_sets_and_two_gets(checks, arrivals.take(checks, 6))
