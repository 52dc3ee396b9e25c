"""The key table, literally: four bytes for each place of the key matrix, a column of six places a line."""

from expected_keys import patched

KEY_TABLE_READ = bytes.fromhex("06 83 00 00 01 00 f8 01") + bytes(512)

# What the keyboard holds when it comes out of the box.
KEY_TABLE_BEFORE = bytes.fromhex("""
    06 83 00 00 01 00 f8 01
    69 76 83 90 9d aa b7 c4 d1 de eb f8 0a 17 24 31 3e 4b 58 65 72 7f 8c 99
    a6 b3 c0 cd da e7 f4 06 13 20 2d 3a 47 54 61 6e 7b 88 95 a2 af bc c9 d6
    e3 f0 02 0f 1c 29 36 43 50 5d 6a 77 84 91 9e ab b8 c5 d2 df ec f9 0b 18
    25 32 3f 4c 59 66 73 80 8d 9a a7 b4 c1 ce db e8 f5 07 14 21 2e 3b 48 55
    62 6f 7c 89 96 a3 b0 bd ca d7 e4 f1 03 10 1d 2a 37 44 51 5e 6b 78 85 92
    9f ac b9 c6 d3 e0 ed fa 0c 19 26 33 40 4d 5a 67 74 81 8e 9b a8 b5 c2 cf
    dc e9 f6 08 15 22 2f 3c 49 56 63 70 7d 8a 97 a4 b1 be cb d8 e5 f2 04 11
    1e 2b 38 45 52 5f 6c 79 86 93 a0 ad ba c7 d4 e1 ee fb 0d 1a 27 34 41 4e
    5b 68 75 82 8f 9c a9 b6 c3 d0 dd ea f7 09 16 23 30 3d 4a 57 64 71 7e 8b
    98 a5 b2 bf cc d9 e6 f3 05 12 1f 2c 39 46 53 60 6d 7a 87 94 a1 ae bb c8
    d5 e2 ef 01 0e 1b 28 35 42 4f 5c 69 76 83 90 9d aa b7 c4 d1 de eb f8 0a
    17 24 31 3e 4b 58 65 72 7f 8c 99 a6 b3 c0 cd da e7 f4 06 13 20 2d 3a 47
    54 61 6e 7b 88 95 a2 af bc c9 d6 e3 f0 02 0f 1c 29 36 43 50 5d 6a 77 84
    91 9e ab b8 c5 d2 df ec f9 0b 18 25 32 3f 4c 59 66 73 80 8d 9a a7 b4 c1
    ce db e8 f5 07 14 21 2e 3b 48 55 62 6f 7c 89 96 a3 b0 bd ca d7 e4 f1 03
    10 1d 2a 37 44 51 5e 6b 78 85 92 9f ac b9 c6 d3 e0 ed fa 0c 19 26 33 40
    4d 5a 67 74 81 8e 9b a8 b5 c2 cf dc e9 f6 08 15 22 2f 3c 49 56 63 70 7d
    8a 97 a4 b1 be cb d8 e5 f2 04 11 1e 2b 38 45 52 5f 6c 79 86 93 a0 ad ba
    c7 d4 e1 ee fb 0d 1a 27 34 41 4e 5b 68 75 82 8f 9c a9 b6 c3 d0 dd ea f7
    09 16 23 30 3d 4a 57 64 71 7e 8b 98 a5 b2 bf cc d9 e6 f3 05 12 1f 2c 39
    46 53 60 6d 7a 87 94 a1 ae bb c8 d5 e2 ef 01 0e 1b 28 35 42 4f 5c 69 76
    83 90 9d aa b7 c4 d1 de
""")

# What "Reset to Defaults" makes of it, in the last of its writes. No key owns the first place, the sixth of most
# columns and everything behind the last ones.
KEY_TABLE_RESET = bytes.fromhex("""
    06 03 00 00 01 00 00 02
    69 76 83 90 00 00 00 1b 00 00 00 09 00 00 00 14 00 02 00 00 00 01 00 00
    a6 b3 c0 cd 00 00 00 31 00 00 00 51 00 00 00 41 00 00 00 5a 00 08 00 00
    e3 f0 02 0f 00 00 00 32 00 00 00 57 00 00 00 53 00 00 00 58 00 04 00 00
    25 32 3f 4c 00 00 00 33 00 00 00 45 00 00 00 44 00 00 00 43 2e 3b 48 55
    62 6f 7c 89 00 00 00 34 00 00 00 52 00 00 00 46 00 00 00 56 6b 78 85 92
    9f ac b9 c6 00 00 00 35 00 00 00 54 00 00 00 47 00 00 00 42 00 00 00 20
    dc e9 f6 08 00 00 00 36 00 00 00 59 00 00 00 48 00 00 00 4e e5 f2 04 11
    1e 2b 38 45 00 00 00 37 00 00 00 55 00 00 00 4a 00 00 00 4d 27 34 41 4e
    5b 68 75 82 00 00 00 38 00 00 00 49 00 00 00 4b 00 00 00 bc 00 40 00 00
    98 a5 b2 bf 00 00 00 39 00 00 00 4f 00 00 00 4c 00 00 00 be 0d 00 00 00
    d5 e2 ef 01 00 00 00 30 00 00 00 50 00 00 00 ba 00 00 00 bf 00 10 00 00
    17 24 31 3e 00 00 00 bd 00 00 00 db 00 00 00 de e7 f4 06 13 20 2d 3a 47
    54 61 6e 7b 00 00 00 bb 00 00 00 dd f0 02 0f 1c 29 36 43 50 5d 6a 77 84
    91 9e ab b8 00 00 00 08 00 00 00 dc 00 00 00 0d 00 20 00 00 00 00 00 25
    ce db e8 f5 07 14 21 2e 3b 48 55 62 6f 7c 89 96 00 00 00 26 00 00 00 28
    10 1d 2a 37 44 51 5e 6b 00 00 00 2e 00 00 00 21 00 00 00 22 00 00 00 27
    4d 5a 67 74 81 8e 9b a8 b5 c2 cf dc e9 f6 08 15 22 2f 3c 49 56 63 70 7d
    8a 97 a4 b1 be cb d8 e5 f2 04 11 1e 2b 38 45 52 5f 6c 79 86 93 a0 ad ba
    c7 d4 e1 ee fb 0d 1a 27 34 41 4e 5b 68 75 82 8f 9c a9 b6 c3 d0 dd ea f7
    09 16 23 30 3d 4a 57 64 71 7e 8b 98 a5 b2 bf cc d9 e6 f3 05 12 1f 2c 39
    46 53 60 6d 7a 87 94 a1 ae bb c8 d5 e2 ef 01 0e 1b 28 35 42 4f 5c 69 76
    83 90 9d aa b7 c4 d1 de
""")


def written(table, codes):
    """The write of that table with those places changed."""
    patches = {8 + 4 * place + at: byte for place, code in codes.items() for at, byte in enumerate(code)}
    return patched(table, {1: 0x03, 6: 0x00, 7: 0x02, **patches})


MUTE, F5 = bytes.fromhex("02 00 00 e2"), bytes.fromhex("00 00 00 3e")
CAPS_LOCK, A = 3, 9  # places in the matrix
MUTE_ON_CAPS_LOCK = written(KEY_TABLE_BEFORE, {CAPS_LOCK: MUTE})
F5_ON_A_TOO = written(KEY_TABLE_BEFORE, {CAPS_LOCK: MUTE, A: F5})

# Where the keys are, of 128 places.
OWNED = {1, 2, 3, 4, 5, 7, 8, 9, 10, 11, 13, 14, 15, 16, 17, 19, 20, 21, 22, 25, 26, 27, 28, 31, 32, 33, 34, 35, 37,
         38, 39, 40, 43, 44, 45, 46, 49, 50, 51, 52, 53, 55, 56, 57, 58, 59, 61, 62, 63, 64, 65, 67, 68, 69, 73, 74,
         79, 80, 81, 82, 83, 88, 89, 92, 93, 94, 95}
assert len(OWNED) == 67


def code(table, place):
    return table[8 + 4 * place:12 + 4 * place]
