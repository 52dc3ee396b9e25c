"""The lighting commands after pink keys have been uploaded, literally: "Raindrops" in pink, then less bright."""

import expected
from expected_keys import PARAMETER_BLOCK_WRITE, patched

VIOLET, PINK = bytes.fromhex("57 08 d4"), bytes.fromhex("ff 00 78")
assert expected.COLOUR_BLOCK_WRITE.count(VIOLET) == 21

COLOUR_BLOCK_WRITE = expected.COLOUR_BLOCK_WRITE.replace(VIOLET, PINK)
BRIGHTNESS_4 = patched(PARAMETER_BLOCK_WRITE, {18: 0x0F, 20: 0x04, 96: 0x04, 97: 0x21})
BRIGHTNESS_1 = patched(PARAMETER_BLOCK_WRITE, {18: 0x0F, 20: 0x01, 96: 0x01, 97: 0x21})
