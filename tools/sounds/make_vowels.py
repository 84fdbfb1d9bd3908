#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
# SPDX-License-Identifier: GPL-3.0-or-later
"""Speaks the 39 vowel files with espeak-ng and trims them with sox: make_vowels.py FOLDER.

A file on "k" is a short vowel, on "l" a long one; longer names are example words. Phonemes are given
instead of letters, since a single letter would be read as its name ("be", "ce").
"""

import pathlib
import subprocess
import sys
import tempfile

VOICE = "de+f2"
SHORT_SPEED, LONG_SPEED, WORD_SPEED = "175", "130", "125"  # words a minute
SHORT_SECONDS = "0.13"  # the voice stretches a short vowel that stands alone
WHOLE = "10"

SHORT_VOWELS = {"ka": "a", "ke": "E", "ki": "I", "ko": "O", "ku": "U", "kä": "E", "kö": "W", "kü": "y"}
LONG_VOWELS = {"la": "A:", "le": "e:", "li": "i:", "lo": "o:", "lu": "u:", "lä": "E:", "lö": "Y:", "lü": "y:",
               "lau": "aU", "lei": "aI", "leu": "OY", "läu": "OY"}
WORDS = {"k": ("lassen", "kennen", "bitten", "kommen", "zucken", "schätzen", "können", "rücken"),
         "l": ("fahren", "gehen", "spielen", "holen", "rufen", "zählen", "hören", "führen", "laufen", "zeigen",
               "heulen")}
# the kind's letter stands before the whole word: "kkönnen" is "können", "krücken" is "rücken"

TRIM = ("silence", "1", "0.003", "1%", "reverse", "silence", "1", "0.003", "1%", "reverse")


def sox(source, target, *effects):
    # -R and -D: no random dither, so that the same voice gives the same bytes
    subprocess.run(("sox", "-V1", "-R", "-D", source, "-r", "22050", "-c", "1", "-b", "16", target, *effects),
                   check=True)


def speak(text, speed, target, longest, fade):
    """Speaks `text` into `target`, cut to `longest` seconds, ending in a fade of `fade` seconds."""
    with tempfile.TemporaryDirectory() as scratch:
        raw, voiced, cut = (str(pathlib.Path(scratch) / name) for name in ("raw.wav", "voiced.wav", "cut.wav"))
        subprocess.run(("espeak-ng", "-v", VOICE, "-s", speed, "-w", raw, text), check=True)
        sox(raw, voiced, *TRIM)
        sox(voiced, cut, "trim", "0", longest)
        sox(cut, str(target), "fade", "t", "0.006", "-0", fade, "norm", "-6.1")


def main():
    if len(sys.argv) != 2:
        sys.exit("usage: make_vowels.py FOLDER")
    folder = pathlib.Path(sys.argv[1])
    folder.mkdir(parents=True, exist_ok=True)
    for name, phoneme in SHORT_VOWELS.items():
        speak(f"[['{phoneme}]]", SHORT_SPEED, folder / f"{name}.wav", SHORT_SECONDS, "0.03")
    for name, phoneme in LONG_VOWELS.items():
        speak(f"[['{phoneme}]]", LONG_SPEED, folder / f"{name}.wav", WHOLE, "0.04")
    for kind, words in WORDS.items():
        for word in words:
            speak(word, WORD_SPEED, folder / f"{kind}{word}.wav", WHOLE, "0.03")


if __name__ == "__main__":
    main()
