"""The bytes on the wire, literally, for a window freshly started: speed 2, brightness 4, colour 57 08 d4."""

HANDSHAKE_QUERY = bytes.fromhex("06 82 01 00 01 00 06") + bytes(513)
COLOUR_BLOCK_READ = bytes.fromhex("06 8a 00 00 01 00 e3 01") + bytes(512)
PARAMETER_BLOCK_READ = bytes.fromhex("06 84 00 00 01 00 80") + bytes(513)

# What the keyboard holds when it comes out of the box.
COLOUR_BLOCK_BEFORE = bytes.fromhex("""
    06 8a 00 00 01 00 e3 01 59 64 6f 7a 85 90 9b a6 b1 bc c7 d2 dd e8 f3 03 0e 19
    24 2f 3a 45 50 5b 66 71 7c 87 92 9d a8 b3 be c9 d4 df ea f5 05 10 1b 26 31 3c
    47 52 5d 68 73 7e 89 94 9f aa b5 c0 cb d6 e1 ec f7 07 12 1d 28 33 3e 49 54 5f
    6a 75 80 8b 96 a1 ac b7 c2 cd d8 e3 ee f9 09 14 1f 2a 35 40 4b 56 61 6c 77 82
    8d 98 a3 ae b9 c4 cf da e5 f0 fb 0b 16 21 2c 37 42 4d 58 63 6e 79 84 8f 9a a5
    b0 bb c6 d1 dc e7 f2 02 0d 18 23 2e 39 44 4f 5a 65 70 7b 86 91 9c a7 b2 bd c8
    d3 de e9 f4 04 0f 1a 25 30 3b 46 51 5c 67 72 7d 88 93 9e a9 b4 bf ca d5 e0 eb
    f6 06 11 1c 27 32 3d 48 53 5e 69 74 7f 8a 95 a0 ab b6 c1 cc d7 e2 ed f8 08 13
    1e 29 34 3f 4a 55 60 6b 76 81 8c 97 a2 ad b8 c3 ce d9 e4 ef fa 0a 15 20 2b 36
    41 4c 57 62 6d 78 83 8e 99 a4 af ba c5 d0 db e6 f1 01 0c 17 22 2d 38 43 4e 59
    64 6f 7a 85 90 9b a6 b1 bc c7 d2 dd e8 f3 03 0e 19 24 2f 3a 45 50 5b 66 71 7c
    87 92 9d a8 b3 be c9 d4 df ea f5 05 10 1b 26 31 3c 47 52 5d 68 73 7e 89 94 9f
    aa b5 c0 cb d6 e1 ec f7 07 12 1d 28 33 3e 49 54 5f 6a 75 80 8b 96 a1 ac b7 c2
    cd d8 e3 ee f9 09 14 1f 2a 35 40 4b 56 61 6c 77 82 8d 98 a3 ae b9 c4 cf da e5
    f0 fb 0b 16 21 2c 37 42 4d 58 63 6e 79 84 8f 9a a5 b0 bb c6 d1 dc e7 f2 02 0d
    18 23 2e 39 44 4f 5a 65 70 7b 86 91 9c a7 b2 bd c8 d3 de e9 f4 04 0f 1a 25 30
    3b 46 51 5c 67 72 7d 88 93 9e a9 b4 bf ca d5 e0 eb f6 06 11 1c 27 32 3d 48 53
    5e 69 74 7f 8a 95 a0 ab b6 c1 cc d7 e2 ed f8 08 13 1e 29 34 3f 4a 55 60 6b 76
    81 8c 97 a2 ad b8 c3 ce d9 e4 ef fa 0a 15 20 2b 36 41 4c 57 62 6d 78 83 8e 99
    a4 af ba c5 d0 db e6 f1 01 0c 17 22 2d 38 43 4e 59 64 6f 7a 85 90 9b a6 b1 bc
""")
PARAMETER_BLOCK_BEFORE = bytes.fromhex("""
    06 84 00 00 01 00 80 00 39 40 47 4e 55 5c 63 6a 71 78 7f 86 8d 94 9b a2 a9 b0
    b7 be c5 cc d3 da e1 e8 ef f6 02 09 10 17 1e 25 2c 33 3a 41 48 4f 56 5d 64 6b
    72 79 80 87 8e 95 9c a3 aa b1 b8 bf c6 cd d4 db e2 e9 f0 f7 03 0a 11 18 1f 26
    2d 34 3b 42 49 50 57 5e 65 6c 73 7a 81 88 8f 96 9d a4 ab b2 b9 c0 c7 ce d5 dc
    e3 ea f1 f8 04 0b 12 19 20 27 2e 35 3c 43 4a 51 58 5f 66 6d 74 7b 82 89 90 97
    9e a5 ac b3 ba c1 c8 cf d6 dd e4 eb f2 f9 05 0c 13 1a 21 28 2f 36 3d 44 4b 52
    59 60 67 6e 75 7c 83 8a 91 98 9f a6 ad b4 bb c2 c9 d0 d7 de e5 ec f3 fa 06 0d
    14 1b 22 29 30 37 3e 45 4c 53 5a 61 68 6f 76 7d 84 8b 92 99 a0 a7 ae b5 bc c3
    ca d1 d8 df e6 ed f4 fb 07 0e 15 1c 23 2a 31 38 3f 46 4d 54 5b 62 69 70 77 7e
    85 8c 93 9a a1 a8 af b6 bd c4 cb d2 d9 e0 e7 ee f5 01 08 0f 16 1d 24 2b 32 39
    40 47 4e 55 5c 63 6a 71 78 7f 86 8d 94 9b a2 a9 b0 b7 be c5 cc d3 da e1 e8 ef
    f6 02 09 10 17 1e 25 2c 33 3a 41 48 4f 56 5d 64 6b 72 79 80 87 8e 95 9c a3 aa
    b1 b8 bf c6 cd d4 db e2 e9 f0 f7 03 0a 11 18 1f 26 2d 34 3b 42 49 50 57 5e 65
    6c 73 7a 81 88 8f 96 9d a4 ab b2 b9 c0 c7 ce d5 dc e3 ea f1 f8 04 0b 12 19 20
    27 2e 35 3c 43 4a 51 58 5f 66 6d 74 7b 82 89 90 97 9e a5 ac b3 ba c1 c8 cf d6
    dd e4 eb f2 f9 05 0c 13 1a 21 28 2f 36 3d 44 4b 52 59 60 67 6e 75 7c 83 8a 91
    98 9f a6 ad b4 bb c2 c9 d0 d7 de e5 ec f3 fa 06 0d 14 1b 22 29 30 37 3e 45 4c
    53 5a 61 68 6f 76 7d 84 8b 92 99 a0 a7 ae b5 bc c3 ca d1 d8 df e6 ed f4 fb 07
    0e 15 1c 23 2a 31 38 3f 46 4d 54 5b 62 69 70 77 7e 85 8c 93 9a a1 a8 af b6 bd
    c4 cb d2 d9 e0 e7 ee f5 01 08 0f 16 1d 24 2b 32 39 40 47 4e 55 5c 63 6a 71 78
""")

# What "Raindrops" makes of it.
COLOUR_BLOCK_WRITE = bytes.fromhex("""
    06 0a 00 00 01 00 00 02 00 57 08 d4 85 90 9b a6 b1 bc c7 d2 dd e8 f3 03 0e 19
    24 2f 3a 45 57 08 d4 71 7c 87 92 9d a8 b3 be c9 d4 df ea f5 05 10 1b 26 31 57
    08 d4 5d 68 73 7e 89 94 9f aa b5 c0 cb d6 e1 ec f7 07 12 1d 57 08 d4 49 54 5f
    6a 75 80 8b 96 a1 ac b7 c2 cd d8 e3 ee f9 09 57 08 d4 35 40 4b 56 61 6c 77 82
    8d 98 a3 ae b9 c4 cf da e5 f0 57 08 d4 21 2c 37 42 4d 58 63 6e 79 84 8f 9a a5
    b0 bb c6 d1 dc 57 08 d4 0d 18 23 2e 39 44 4f 5a 65 70 7b 86 91 9c a7 b2 bd c8
    57 08 d4 f4 04 0f 1a 25 30 3b 46 51 5c 67 72 7d 88 93 9e a9 b4 57 08 d4 e0 eb
    f6 06 11 1c 27 32 3d 48 53 5e 69 74 7f 8a 95 a0 57 08 d4 cc d7 e2 ed f8 08 13
    1e 29 34 3f 4a 55 60 6b 76 81 8c 57 08 d4 b8 c3 ce d9 e4 ef fa 0a 15 20 2b 36
    41 4c 57 62 6d 78 57 08 d4 a4 af ba c5 d0 db e6 f1 01 0c 17 22 2d 38 43 4e 59
    64 57 08 d4 90 9b a6 b1 bc c7 d2 dd e8 f3 03 0e 19 24 2f 3a 45 50 57 08 d4 7c
    87 92 9d a8 b3 be c9 d4 df ea f5 05 10 1b 26 31 3c 57 08 d4 68 73 7e 89 94 9f
    aa b5 c0 cb d6 e1 ec f7 07 12 1d 28 57 08 d4 54 5f 6a 75 80 8b 96 a1 ac b7 c2
    cd d8 e3 ee f9 09 14 57 08 d4 40 4b 56 61 6c 77 82 8d 98 a3 ae b9 c4 cf da e5
    f0 fb 57 08 d4 2c 37 42 4d 58 63 6e 79 84 8f 9a a5 b0 bb c6 d1 dc e7 57 08 d4
    18 23 2e 39 44 4f 5a 65 70 7b 86 91 9c a7 b2 bd c8 d3 57 08 d4 04 0f 1a 25 30
    3b 46 51 5c 67 72 7d 88 93 9e a9 b4 bf 57 08 d4 eb f6 06 11 1c 27 32 3d 48 53
    5e 69 74 7f 8a 95 a0 ab b6 c1 cc d7 e2 ed f8 08 13 1e 29 34 3f 4a 55 60 6b 76
    81 8c 97 a2 ad b8 c3 ce d9 e4 ef fa 0a 15 20 2b 36 41 4c 57 62 6d 78 5a a5 99
    a4 af ba c5 d0 db e6 f1 01 0c 17 22 2d 38 43 4e 59 64 6f 7a 5a a5 9b a6 b1 bc
""")
PARAMETER_BLOCK_WRITE = bytes.fromhex("""
    06 04 00 00 01 00 80 00 39 40 47 4e 55 5c 63 6a 71 78 0f 02 04 01 9b a2 a9 b0
    b7 be c5 cc d3 da e1 e8 ef f6 02 09 10 17 1e 25 2c 33 3a 41 48 4f 56 5d 64 6b
    72 79 80 87 8e 95 9c a3 aa b1 b8 bf c6 cd d4 db e2 e9 f0 f7 03 0a 11 18 1f 26
    2d 34 3b 42 49 50 57 5e 65 6c 73 7a 81 88 8f 96 9d a4 04 21 b9 c0 c7 ce d5 dc
    e3 ea f1 f8 04 0b 12 19 20 27 2e 35 3c 43 4a 51 58 5f 66 6d 74 7b 82 89 90 97
    9e a5 ac b3 5a a5 c8 cf d6 dd e4 eb f2 f9 05 0c 13 1a 21 28 2f 36 3d 44 4b 52
    59 60 67 6e 75 7c 83 8a 91 98 9f a6 ad b4 bb c2 c9 d0 d7 de e5 ec f3 fa 06 0d
    14 1b 22 29 30 37 3e 45 4c 53 5a 61 68 6f 76 7d 84 8b 92 99 a0 a7 ae b5 bc c3
    ca d1 d8 df e6 ed f4 fb 07 0e 15 1c 23 2a 31 38 3f 46 4d 54 5b 62 69 70 77 7e
    85 8c 93 9a a1 a8 af b6 bd c4 cb d2 d9 e0 e7 ee f5 01 08 0f 16 1d 24 2b 32 39
    40 47 4e 55 5c 63 6a 71 78 7f 86 8d 94 9b a2 a9 b0 b7 be c5 cc d3 da e1 e8 ef
    f6 02 09 10 17 1e 25 2c 33 3a 41 48 4f 56 5d 64 6b 72 79 80 87 8e 95 9c a3 aa
    b1 b8 bf c6 cd d4 db e2 e9 f0 f7 03 0a 11 18 1f 26 2d 34 3b 42 49 50 57 5e 65
    6c 73 7a 81 88 8f 96 9d a4 ab b2 b9 c0 c7 ce d5 dc e3 ea f1 f8 04 0b 12 19 20
    27 2e 35 3c 43 4a 51 58 5f 66 6d 74 7b 82 89 90 97 9e a5 ac b3 ba c1 c8 cf d6
    dd e4 eb f2 f9 05 0c 13 1a 21 28 2f 36 3d 44 4b 52 59 60 67 6e 75 7c 83 8a 91
    98 9f a6 ad b4 bb c2 c9 d0 d7 de e5 ec f3 fa 06 0d 14 1b 22 29 30 37 3e 45 4c
    53 5a 61 68 6f 76 7d 84 8b 92 99 a0 a7 ae b5 bc c3 ca d1 d8 df e6 ed f4 fb 07
    0e 15 1c 23 2a 31 38 3f 46 4d 54 5b 62 69 70 77 7e 85 8c 93 9a a1 a8 af b6 bd
    c4 cb d2 d9 e0 e7 ee f5 01 08 0f 16 1d 24 2b 32 39 40 47 4e 55 5c 63 6a 71 78
""")

# The only places that may differ from what the keyboard answered: command and length, 21 colours of three bytes,
# two end marks; command, effect header, the record of the effect, end mark.
COLOUR_BLOCK_PATCHED = (
    {1, 6, 7, 8, 491, 492, 514, 515} | {9 + 21 * record + part for record in range(21) for part in range(3)}
)


def parameter_block_patched(effect):
    return {1, 18, 19, 20, 21, 66 + 2 * effect, 67 + 2 * effect, 134, 135}
