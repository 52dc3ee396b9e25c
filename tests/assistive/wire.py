"""What the commands look like on the wire."""

import expected

MS = 1000


def handshake_is_one_pair(checks, transfers):
    checks.equal("the handshake is one set and one get", [one.direction for one in transfers], ["set", "get"])
    query, answer = transfers
    checks.same_bytes("the query is 06 82 01 00 01 00 06 and zeros", query.bytes, expected.HANDSHAKE_QUERY)
    checks.check("both were accepted", query.accepted and answer.accepted)
    checks.check("the answer is fetched 30 ms later at the earliest", answer.us - query.us >= 30 * MS, f"{transfers}")


def effect_is_four_sets_and_two_gets(checks, transfers, colours=expected.COLOUR_BLOCK_WRITE,
                                     parameters=expected.PARAMETER_BLOCK_WRITE):
    order = ["set", "get", "set", "set", "get", "set"]
    checks.equal("the effect is four sets and two gets", [one.direction for one in transfers], order)
    checks.check("all were accepted", all(one.accepted for one in transfers), f"{transfers}")
    checks.check("all have 520 bytes", all(one.length == 520 for one in transfers), f"{transfers}")
    sets = [one for one in transfers if one.direction == "set"]
    gaps = [after.us - before.us for before, after in zip(sets, sets[1:])]
    checks.check("at least 20 ms between sets", all(gap >= 20 * MS for gap in gaps), f"{gaps} microseconds")
    bytes_are_right(checks, [one.bytes for one in transfers], colours, parameters)


def bytes_are_right(checks, reports, wanted_colours, wanted_parameters):
    colours_asked, colours, colours_written, parameters_asked, parameters, parameters_written = reports
    checks.same_bytes("the colour block is asked for", colours_asked, expected.COLOUR_BLOCK_READ)
    checks.same_bytes("the colour block is written as it must be", colours_written, wanted_colours)
    checks.same_bytes("the parameter block is asked for", parameters_asked, expected.PARAMETER_BLOCK_READ)
    checks.same_bytes("the parameter block is written as it must be", parameters_written, wanted_parameters)
    for what, before, after, patched in (
            ("colour", colours, colours_written, expected.COLOUR_BLOCK_PATCHED),
            ("parameter", parameters, parameters_written, expected.parameter_block_patched(wanted_parameters[18]))):
        changed = {at for at in range(520) if before[at:at + 1] != after[at:at + 1]}
        checks.check(f"no other byte of the {what} block differs", changed <= patched, f"{sorted(changed - patched)}")


def as_read(report):
    """A block read back carries the read command, which is the write command with its top bit set."""
    return report[:1] + bytes([report[1] | 0x80]) + report[2:]
