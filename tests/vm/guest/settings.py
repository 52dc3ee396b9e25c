"""What the change of one setting looks like on the wire: the block is asked for, read, and written with that byte."""

import expected
import stories


def is_exchange(checks, what, transfers, before, written, least_ms):
    """Three transfers; `before` is the block that the keyboard held."""
    query, answer, write = transfers
    checks.equal(f"{what}: asked for, read and written", [one.direction for one in transfers], ["set", "get", "set"])
    checks.check(f"{what}: all were accepted", all(one.accepted for one in transfers), f"{transfers}")
    checks.same_bytes(f"{what}: the query", query.bytes, expected.PARAMETER_BLOCK_READ)
    checks.same_bytes(f"{what}: the answer", answer.bytes, stories.as_read(before))
    checks.check(f"{what}: the answer is fetched {least_ms} ms later at the earliest",
                 answer.us - query.us >= least_ms * stories.MS, f"{transfers}")
    checks.same_bytes(f"{what}: what is written", write.bytes, written)
