"""The uploads of the keys' own colours, literally. A bank has a place of three bytes for each place of the key matrix,
two columns of keys a line; the planes have a byte for each LED, in the order of their numbers."""

import expected


def bank(selector, places):
    report = bytes.fromhex(f"06 09 {selector} 00 01 00 00 02" + places)
    return report + bytes(514 - len(report)) + bytes.fromhex("5a a5 00 00 00 00")


def planes(red, green, blue):
    room = bytes(59)  # each plane could hold 126 LEDs
    filled = b"".join(bytes.fromhex(plane) + room for plane in (red, green, blue))
    return bytes.fromhex("06 06 00 00 01 00 7a 01") + filled + bytes.fromhex("5a a5") + bytes(126) + bytes.fromhex(
        "5a a5 00 00 00 00")


def patched(report, patches):
    return bytes(patches.get(at, byte) for at, byte in enumerate(report))


# Speed 2 and brightness 4, in the header and in the record of effect 1d.
PARAMETER_BLOCK_WRITE = patched(expected.PARAMETER_BLOCK_BEFORE, {
    1: 0x04, 18: 0x1D, 19: 0x02, 20: 0x04, 21: 0x01, 124: 0x04, 125: 0x21, 134: 0x5A, 135: 0xA5})
PARAMETER_BLOCK_KEPT = patched(PARAMETER_BLOCK_WRITE, {1: 0x84})
# The same where "Raindrops" was chosen before, whose record stays.
PARAMETER_BLOCK_ON_RAINDROPS = patched(expected.PARAMETER_BLOCK_WRITE, {18: 0x1D, 124: 0x04, 125: 0x21})

# As the keys come: (87, 8, 212) each.
VIOLET = (
    bank("bc", """
    00 00 00 57 08 d4 57 08 d4 57 08 d4 57 08 d4 57 08 d4 00 00 00 57 08 d4 57 08 d4 57 08 d4 57 08 d4 57 08 d4
    00 00 00 57 08 d4 57 08 d4 57 08 d4 57 08 d4 57 08 d4 00 00 00 57 08 d4 57 08 d4 57 08 d4 57 08 d4 00 00 00
    00 00 00 57 08 d4 57 08 d4 57 08 d4 57 08 d4 00 00 00 00 00 00 57 08 d4 57 08 d4 57 08 d4 57 08 d4 57 08 d4
    00 00 00 57 08 d4 57 08 d4 57 08 d4 57 08 d4 00 00 00 00 00 00 57 08 d4 57 08 d4 57 08 d4 57 08 d4 00 00 00
    00 00 00 57 08 d4 57 08 d4 57 08 d4 57 08 d4 57 08 d4 00 00 00 57 08 d4 57 08 d4 57 08 d4 57 08 d4 57 08 d4
    00 00 00 57 08 d4 57 08 d4 57 08 d4
    """),
    bank("c0", """
    57 08 d4 57 08 d4 00 00 00 57 08 d4 57 08 d4 57 08 d4 00 00 00 00 00 00 00 00 00 57 08 d4 57 08 d4 00 00 00
    00 00 00 00 00 00 00 00 00 57 08 d4 57 08 d4 57 08 d4 57 08 d4 57 08 d4 00 00 00 00 00 00 00 00 00 00 00 00
    57 08 d4 57 08 d4 00 00 00 00 00 00 57 08 d4 57 08 d4 57 08 d4 57 08 d4
    """),
    planes("""
    57 57 57 57 57 57 57 57 57 57 57 57 57 57 57 57 57 57 57 57 57 57 57 57 57 57 57 57 57 57 57 57 57 57
    57 57 57 57 57 57 57 57 57 57 57 57 57 57 57 57 57 57 57 57 57 57 57 57 57 57 57 57 57 57 57 57 57
    """, """
    08 08 08 08 08 08 08 08 08 08 08 08 08 08 08 08 08 08 08 08 08 08 08 08 08 08 08 08 08 08 08 08 08 08
    08 08 08 08 08 08 08 08 08 08 08 08 08 08 08 08 08 08 08 08 08 08 08 08 08 08 08 08 08 08 08 08 08
    """, """
    d4 d4 d4 d4 d4 d4 d4 d4 d4 d4 d4 d4 d4 d4 d4 d4 d4 d4 d4 d4 d4 d4 d4 d4 d4 d4 d4 d4 d4 d4 d4 d4 d4 d4
    d4 d4 d4 d4 d4 d4 d4 d4 d4 d4 d4 d4 d4 d4 d4 d4 d4 d4 d4 d4 d4 d4 d4 d4 d4 d4 d4 d4 d4 d4 d4 d4 d4
    """),
)

# W, A, S and D in (255, 0, 120).
PINK_WASD = (
    bank("bc", """
    00 00 00 57 08 d4 57 08 d4 57 08 d4 57 08 d4 57 08 d4 00 00 00 57 08 d4 57 08 d4 ff 00 78 57 08 d4 57 08 d4
    00 00 00 57 08 d4 ff 00 78 ff 00 78 57 08 d4 57 08 d4 00 00 00 57 08 d4 57 08 d4 ff 00 78 57 08 d4 00 00 00
    00 00 00 57 08 d4 57 08 d4 57 08 d4 57 08 d4 00 00 00 00 00 00 57 08 d4 57 08 d4 57 08 d4 57 08 d4 57 08 d4
    00 00 00 57 08 d4 57 08 d4 57 08 d4 57 08 d4 00 00 00 00 00 00 57 08 d4 57 08 d4 57 08 d4 57 08 d4 00 00 00
    00 00 00 57 08 d4 57 08 d4 57 08 d4 57 08 d4 57 08 d4 00 00 00 57 08 d4 57 08 d4 57 08 d4 57 08 d4 57 08 d4
    00 00 00 57 08 d4 57 08 d4 57 08 d4
    """),
    bank("c0", """
    57 08 d4 57 08 d4 00 00 00 57 08 d4 57 08 d4 57 08 d4 00 00 00 00 00 00 00 00 00 57 08 d4 57 08 d4 00 00 00
    00 00 00 00 00 00 00 00 00 57 08 d4 57 08 d4 57 08 d4 57 08 d4 57 08 d4 00 00 00 00 00 00 00 00 00 00 00 00
    57 08 d4 57 08 d4 00 00 00 00 00 00 57 08 d4 57 08 d4 57 08 d4 57 08 d4
    """),
    planes("""
    57 57 57 57 57 57 57 ff 57 57 57 ff ff 57 57 57 57 ff 57 57 57 57 57 57 57 57 57 57 57 57 57 57 57 57
    57 57 57 57 57 57 57 57 57 57 57 57 57 57 57 57 57 57 57 57 57 57 57 57 57 57 57 57 57 57 57 57 57
    """, """
    08 08 08 08 08 08 08 00 08 08 08 00 00 08 08 08 08 00 08 08 08 08 08 08 08 08 08 08 08 08 08 08 08 08
    08 08 08 08 08 08 08 08 08 08 08 08 08 08 08 08 08 08 08 08 08 08 08 08 08 08 08 08 08 08 08 08 08
    """, """
    d4 d4 d4 d4 d4 d4 d4 78 d4 d4 d4 78 78 d4 d4 d4 d4 78 d4 d4 d4 d4 d4 d4 d4 d4 d4 d4 d4 d4 d4 d4 d4 d4
    d4 d4 d4 d4 d4 d4 d4 d4 d4 d4 d4 d4 d4 d4 d4 d4 d4 d4 d4 d4 d4 d4 d4 d4 d4 d4 d4 d4 d4 d4 d4 d4 d4
    """),
)

# And Esc.
PINK_WASD_AND_ESC = (
    bank("bc", """
    00 00 00 ff 00 78 57 08 d4 57 08 d4 57 08 d4 57 08 d4 00 00 00 57 08 d4 57 08 d4 ff 00 78 57 08 d4 57 08 d4
    00 00 00 57 08 d4 ff 00 78 ff 00 78 57 08 d4 57 08 d4 00 00 00 57 08 d4 57 08 d4 ff 00 78 57 08 d4 00 00 00
    00 00 00 57 08 d4 57 08 d4 57 08 d4 57 08 d4 00 00 00 00 00 00 57 08 d4 57 08 d4 57 08 d4 57 08 d4 57 08 d4
    00 00 00 57 08 d4 57 08 d4 57 08 d4 57 08 d4 00 00 00 00 00 00 57 08 d4 57 08 d4 57 08 d4 57 08 d4 00 00 00
    00 00 00 57 08 d4 57 08 d4 57 08 d4 57 08 d4 57 08 d4 00 00 00 57 08 d4 57 08 d4 57 08 d4 57 08 d4 57 08 d4
    00 00 00 57 08 d4 57 08 d4 57 08 d4
    """),
    bank("c0", """
    57 08 d4 57 08 d4 00 00 00 57 08 d4 57 08 d4 57 08 d4 00 00 00 00 00 00 00 00 00 57 08 d4 57 08 d4 00 00 00
    00 00 00 00 00 00 00 00 00 57 08 d4 57 08 d4 57 08 d4 57 08 d4 57 08 d4 00 00 00 00 00 00 00 00 00 00 00 00
    57 08 d4 57 08 d4 00 00 00 00 00 00 57 08 d4 57 08 d4 57 08 d4 57 08 d4
    """),
    planes("""
    ff 57 57 57 57 57 57 ff 57 57 57 ff ff 57 57 57 57 ff 57 57 57 57 57 57 57 57 57 57 57 57 57 57 57 57
    57 57 57 57 57 57 57 57 57 57 57 57 57 57 57 57 57 57 57 57 57 57 57 57 57 57 57 57 57 57 57 57 57
    """, """
    00 08 08 08 08 08 08 00 08 08 08 00 00 08 08 08 08 00 08 08 08 08 08 08 08 08 08 08 08 08 08 08 08 08
    08 08 08 08 08 08 08 08 08 08 08 08 08 08 08 08 08 08 08 08 08 08 08 08 08 08 08 08 08 08 08 08 08
    """, """
    78 d4 d4 d4 d4 d4 d4 78 d4 d4 d4 78 78 d4 d4 d4 d4 78 d4 d4 d4 d4 d4 d4 d4 d4 d4 d4 d4 d4 d4 d4 d4 d4
    d4 d4 d4 d4 d4 d4 d4 d4 d4 d4 d4 d4 d4 d4 d4 d4 d4 d4 d4 d4 d4 d4 d4 d4 d4 d4 d4 d4 d4 d4 d4 d4 d4
    """),
)

# Hue LED / 67, saturation and brightness 1.
RAINBOW = (
    bank("bc", """
    00 00 00 ff 00 00 ff 16 00 ff 2d 00 ff 44 00 ff 5b 00 00 00 00 ff 72 00 ff 89 00 ff 9f 00 ff b6 00 ff cd 00
    00 00 00 ff e4 00 ff fb 00 eb ff 00 d5 ff 00 be ff 00 00 00 00 a7 ff 00 90 ff 00 79 ff 00 62 ff 00 00 00 00
    00 00 00 4c ff 00 35 ff 00 1e ff 00 07 ff 00 00 00 00 00 00 00 00 ff 0f 00 ff 26 00 ff 3c 00 ff 53 00 ff 6a
    00 00 00 00 ff 81 00 ff 98 00 ff af 00 ff c5 00 00 00 00 00 00 00 ff dc 00 ff f3 00 f3 ff 00 dc ff 00 00 00
    00 00 00 00 c5 ff 00 af ff 00 98 ff 00 81 ff 00 6a ff 00 00 00 00 53 ff 00 3c ff 00 26 ff 00 0f ff 07 00 ff
    00 00 00 1e 00 ff 35 00 ff 4c 00 ff
    """),
    bank("c0", """
    62 00 ff 79 00 ff 00 00 00 90 00 ff a7 00 ff be 00 ff 00 00 00 00 00 00 00 00 00 d5 00 ff eb 00 ff 00 00 00
    00 00 00 00 00 00 00 00 00 ff 00 fb ff 00 e4 ff 00 cd ff 00 b6 ff 00 9f 00 00 00 00 00 00 00 00 00 00 00 00
    ff 00 89 ff 00 72 00 00 00 00 00 00 ff 00 5b ff 00 44 ff 00 2d ff 00 16
    """),
    planes("""
    ff ff ff ff ff ff ff ff ff ff ff ff eb d5 be a7 90 79 62 4c 35 1e 07 00 00 00 00 00 00 00 00 00 00 00
    00 00 00 00 00 00 00 00 00 00 00 07 1e 35 4c 62 79 90 a7 be d5 eb ff ff ff ff ff ff ff ff ff ff ff
    """, """
    00 16 2d 44 5b 72 89 9f b6 cd e4 fb ff ff ff ff ff ff ff ff ff ff ff ff ff ff ff ff ff ff ff ff ff ff
    f3 dc c5 af 98 81 6a 53 3c 26 0f 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00
    """, """
    00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 0f 26 3c 53 6a 81 98 af c5 dc f3
    ff ff ff ff ff ff ff ff ff ff ff ff ff ff ff ff ff ff ff ff ff ff fb e4 cd b6 9f 89 72 5b 44 2d 16
    """),
)

# All in (255, 0, 120).
PINK = (
    bank("bc", """
    00 00 00 ff 00 78 ff 00 78 ff 00 78 ff 00 78 ff 00 78 00 00 00 ff 00 78 ff 00 78 ff 00 78 ff 00 78 ff 00 78
    00 00 00 ff 00 78 ff 00 78 ff 00 78 ff 00 78 ff 00 78 00 00 00 ff 00 78 ff 00 78 ff 00 78 ff 00 78 00 00 00
    00 00 00 ff 00 78 ff 00 78 ff 00 78 ff 00 78 00 00 00 00 00 00 ff 00 78 ff 00 78 ff 00 78 ff 00 78 ff 00 78
    00 00 00 ff 00 78 ff 00 78 ff 00 78 ff 00 78 00 00 00 00 00 00 ff 00 78 ff 00 78 ff 00 78 ff 00 78 00 00 00
    00 00 00 ff 00 78 ff 00 78 ff 00 78 ff 00 78 ff 00 78 00 00 00 ff 00 78 ff 00 78 ff 00 78 ff 00 78 ff 00 78
    00 00 00 ff 00 78 ff 00 78 ff 00 78
    """),
    bank("c0", """
    ff 00 78 ff 00 78 00 00 00 ff 00 78 ff 00 78 ff 00 78 00 00 00 00 00 00 00 00 00 ff 00 78 ff 00 78 00 00 00
    00 00 00 00 00 00 00 00 00 ff 00 78 ff 00 78 ff 00 78 ff 00 78 ff 00 78 00 00 00 00 00 00 00 00 00 00 00 00
    ff 00 78 ff 00 78 00 00 00 00 00 00 ff 00 78 ff 00 78 ff 00 78 ff 00 78
    """),
    planes("""
    ff ff ff ff ff ff ff ff ff ff ff ff ff ff ff ff ff ff ff ff ff ff ff ff ff ff ff ff ff ff ff ff ff ff
    ff ff ff ff ff ff ff ff ff ff ff ff ff ff ff ff ff ff ff ff ff ff ff ff ff ff ff ff ff ff ff ff ff
    """, """
    00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00
    00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00
    """, """
    78 78 78 78 78 78 78 78 78 78 78 78 78 78 78 78 78 78 78 78 78 78 78 78 78 78 78 78 78 78 78 78 78 78
    78 78 78 78 78 78 78 78 78 78 78 78 78 78 78 78 78 78 78 78 78 78 78 78 78 78 78 78 78 78 78 78 78
    """),
)
