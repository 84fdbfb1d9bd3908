#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
# SPDX-License-Identifier: GPL-3.0-or-later
"""Makes the program's numbered sounds 101 to 124 (there is no 116): make_sounds.py FOLDER.

Everything that tells of success climbs in C major, what failed falls gently, what touches tiles is wood.
"""

import pathlib
import sys

from synthesis import MUSIC_BOX, WOOD, brush, flute, glide, mix, spring, struck, write_wav


def bars(seconds, decay, notes, partials=None):
    """A run of struck bars; `notes` are (start, note, loudness)."""
    extra = {"partials": partials} if partials else {}
    return mix(seconds, *((start, loudness, struck(note, seconds - start, decay, **extra))
                          for start, note, loudness in notes))


def right_word():
    return bars(0.45, 0.16, ((0, "G5", 0.8), (0.09, "C6", 0.9), (0.18, "E6", 1.0)), MUSIC_BOX)


def not_found():
    return bars(0.63, 0.17, ((0, "E4", 1.0), (0.2, "C4", 0.9)))


def little_fanfare():
    run = bars(1.4, 0.3, ((0, "C5", 0.8), (0.13, "E5", 0.8), (0.26, "G5", 0.9), (0.42, "C6", 1.0),
                          (0.62, "G5", 0.7), (0.76, "C6", 1.0), (0.76, "E6", 0.7)), MUSIC_BOX)
    return mix(1.4, (0, 1.0, run), (0.42, 0.22, flute("C5", 0.9)), (0.42, 0.18, flute("G4", 0.9)))


def curtain():
    notes = ("C5", "D5", "E5", "G5", "A5", "C6", "D6", "E6")
    return bars(1.46, 0.4, tuple((0.09 * i, note, 0.7) for i, note in enumerate(notes)), MUSIC_BOX)


def erase():
    return mix(0.23, (0, 1.0, brush(0.22, 2400, 700, 105)))


def key_tick():
    return mix(0.1, (0, 1.0, struck(1150, 0.1, 0.014, WOOD, 0.001)))


def drop():
    return mix(0.09, (0, 1.0, struck("A4", 0.09, 0.022, WOOD, 0.001)))


def time_out():
    chimes = []
    for start in (0.0, 1.15, 2.3):
        chimes += [(start, "E5", 0.9), (start + 0.28, "C5", 0.9), (start + 0.56, "G4", 1.0)]
    return bars(3.8, 0.5, tuple(chimes), MUSIC_BOX)


def shuffle_tiles():
    clicks = ((0.02, 520), (0.08, 700), (0.13, 590), (0.19, 780), (0.24, 640), (0.30, 830))
    return mix(0.42, (0, 0.8, brush(0.4, 900, 2200, 109, 0.5)),
               *((start, 0.5, struck(frequency, 0.1, 0.016, WOOD, 0.001)) for start, frequency in clicks))


def tip_appears():
    sparkle = bars(2.5, 0.55, ((0, "E6", 0.6), (0.12, "G6", 0.6), (0.24, "C7", 0.7), (0.5, "G6", 0.35),
                               (0.62, "C7", 0.4)), MUSIC_BOX)
    return mix(2.5, (0, 0.7, sparkle), (0, 0.3, flute("C5", 1.2, 0.15, 0.7)), (0.1, 0.25, flute("G5", 1.3, 0.2, 0.8)))


def capitals():
    return mix(0.12, (0, 1.0, glide("G5", "D6", 0.12, 0.05)))


def pair_found():
    return bars(0.45, 0.13, ((0, "C5", 0.9), (0, "E5", 0.7), (0.13, "G5", 1.0), (0.13, "C6", 0.8)))


def ball_bounce():
    return mix(0.8, (0, 1.0, spring("E4", "A3", 0.8, 0.18, 13)), (0, 0.5, struck("A3", 0.2, 0.03, WOOD)))


def first_card():
    return mix(0.3, (0, 0.5, brush(0.14, 1200, 2600, 114, 0.7)), (0.09, 1.0, struck("G4", 0.2, 0.05)))


def no_pair():
    return bars(0.42, 0.1, ((0, "G4", 0.9), (0.14, "E4", 1.0)))


def hello():
    return bars(0.5, 0.18, ((0, "C5", 0.8), (0.11, "G5", 1.0), (0.22, "E5", 0.8)))


def good_bye():
    return bars(0.6, 0.2, ((0, "G5", 0.9), (0.14, "E5", 0.9), (0.28, "C5", 1.0)))


def game_start():
    return bars(0.61, 0.12, ((0, "G4", 0.8), (0.13, "G4", 0.8), (0.26, "C5", 1.0), (0.26, "G5", 0.8),
                             (0.26, "E5", 0.7)))


def insert_tiles():
    falls = ((0, "C5"), (0.08, "E5"), (0.16, "D5"), (0.24, "G5"))
    return mix(0.46, *((start, 1.0, struck(note, 0.22, 0.05)) for start, note in falls))


def list_opens():
    return mix(0.6, (0, 0.9, brush(0.32, 800, 3000, 121, 0.6)), (0.2, 0.6, struck("D5", 0.4, 0.1)),
               (0.27, 0.6, struck("A5", 0.33, 0.1)))


def tiles_removed():
    return mix(0.13, (0, 1.0, glide("E5", "A4", 0.13, 0.05)))


def tile_placed():
    return mix(0.11, (0, 1.0, struck("E5", 0.11, 0.028)))


def wrong_vowel():
    return mix(0.28, (0, 1.0, flute("F4", 0.15, 0.02, 0.06)), (0.12, 1.0, flute("D4", 0.16, 0.03, 0.08)))


# number, maker, peak of full scale (what is heard often is quieter)
SOUNDS = (
    (101, right_word, 0.45),
    (102, not_found, 0.40),
    (103, little_fanfare, 0.48),
    (104, curtain, 0.42),
    (105, erase, 0.30),
    (106, key_tick, 0.18),
    (107, drop, 0.35),
    (108, time_out, 0.50),
    (109, shuffle_tiles, 0.35),
    (110, tip_appears, 0.40),
    (111, capitals, 0.30),
    (112, pair_found, 0.45),
    (113, ball_bounce, 0.40),
    (114, first_card, 0.35),
    (115, no_pair, 0.38),
    (117, hello, 0.42),
    (118, good_bye, 0.42),
    (119, game_start, 0.48),
    (120, insert_tiles, 0.40),
    (121, list_opens, 0.35),
    (122, tiles_removed, 0.32),
    (123, tile_placed, 0.35),
    (124, wrong_vowel, 0.36),
)


def main():
    if len(sys.argv) != 2:
        sys.exit("usage: make_sounds.py FOLDER")
    folder = pathlib.Path(sys.argv[1])
    folder.mkdir(parents=True, exist_ok=True)
    for number, maker, peak in SOUNDS:
        write_wav(folder / f"{number}.wav", maker(), peak)


if __name__ == "__main__":
    main()
