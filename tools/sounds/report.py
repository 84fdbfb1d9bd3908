#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
# SPDX-License-Identifier: GPL-3.0-or-later
"""Measures all sounds and fails if one breaks the rules: report.py SOUNDS VOWELS >report.txt

Rules: 22.05 kHz, mono, 16 bit; no sound peaks above 0.5; 39 vowel files;
each long vowel lasts at least twice as long as its short one.
"""

import array
import math
import pathlib
import sys
import unicodedata
import wave

NUMBERED = [n for n in range(101, 125) if n != 116]
PAIRS = "aeiouäöü"


def measure(path):
    """Milliseconds, peak and loudness (root of the mean square), both as parts of full scale."""
    with wave.open(str(path), "rb") as sound:
        if (sound.getframerate(), sound.getnchannels(), sound.getsampwidth()) != (22050, 1, 2):
            sys.exit(f"{path}: not 22.05 kHz, mono, 16 bit")
        samples = array.array("h", sound.readframes(sound.getnframes()))
    peak = max(abs(sample) for sample in samples) / 32768
    loudness = math.sqrt(sum(sample * sample for sample in samples) / len(samples)) / 32768
    return len(samples) / 22.05, peak, loudness


def table(title, rows):
    print(title)
    print(f"{'file':<16}{'ms':>7}{'peak':>7}{'rms':>7}")
    for name, (length, peak, loudness) in rows.items():
        print(f"{name:<16}{length:>7.0f}{peak:>7.2f}{loudness:>7.3f}")
    print()


def main():
    if len(sys.argv) != 3:
        sys.exit("usage: report.py SOUNDS VOWELS")
    sounds, vowels = map(pathlib.Path, sys.argv[1:])
    numbered = {f"{n}.wav": measure(sounds / f"{n}.wav") for n in NUMBERED}
    spoken = {unicodedata.normalize("NFC", path.name): measure(path) for path in sorted(vowels.glob("*.wav"))}
    faults = [f"{name}: peak {row[1]:.2f}" for name, row in (numbered | spoken).items() if row[1] > 0.5]
    if len(spoken) != 39:
        faults.append(f"{len(spoken)} vowel files instead of 39")

    table("Numbered sounds", numbered)
    table("Vowels and example words (k short, l long)", spoken)
    print("Short against long")
    for letter in PAIRS:
        short, long = spoken[f"k{letter}.wav"][0], spoken[f"l{letter}.wav"][0]
        print(f"{letter}  {short:4.0f} ms  {long:4.0f} ms  {long / short:.1f} times")
        if long < 2 * short:
            faults.append(f"{letter}: long is not twice as long as short")
    if faults:
        sys.exit("\n".join(faults))


if __name__ == "__main__":
    main()
