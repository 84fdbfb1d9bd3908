# SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
# SPDX-License-Identifier: GPL-3.0-or-later
"""Small additive synthesiser: sounds are lists of floats at RATE samples a second.

Three instruments make one family: a marimba (wooden, dry), a music box (bright, ringing) and a soft
flute (sustained). Times are in seconds, pitches are note names such as "C5" or frequencies in Hz.
"""

import array
import math
import random
import wave

RATE = 22050
SEMITONES = {"C": -9, "D": -7, "E": -5, "F": -4, "G": -2, "A": 0, "B": 2}

# (ratio to the fundamental, loudness, decay relative to the fundamental's)
MARIMBA = ((1.0, 1.0, 1.0), (3.93, 0.28, 0.35), (9.24, 0.08, 0.12))
MUSIC_BOX = ((1.0, 1.0, 1.0), (2.0, 0.35, 0.6), (3.01, 0.16, 0.4), (5.42, 0.10, 0.2))
WOOD = ((1.0, 1.0, 1.0), (2.57, 0.40, 0.5), (4.95, 0.20, 0.3))


def pitch(note):
    """Frequency in Hz of "A4", "C#5" and the like; numbers pass unchanged."""
    if not isinstance(note, str):
        return float(note)
    sharp = 1 if note[1] == "#" else 0
    octave = int(note[1 + sharp:])
    return 440.0 * 2 ** ((SEMITONES[note[0]] + sharp) / 12 + octave - 4)


def silence(seconds):
    return [0.0] * round(seconds * RATE)


def attack_at(time, seconds):
    """Rising half of a cosine, so that no sound starts with a click."""
    return 1.0 if time >= seconds else 0.5 - 0.5 * math.cos(math.pi * time / seconds)


def struck(note, seconds, decay, partials=MARIMBA, attack=0.003):
    """A struck bar; `decay` is the time in which the fundamental falls to 1/e."""
    frequency = pitch(note)
    audible = [p for p in partials if frequency * p[0] < RATE * 0.45]
    out = silence(seconds)
    for ratio, loudness, relative in audible:
        step = 2 * math.pi * frequency * ratio / RATE
        fall = math.exp(-1 / (decay * relative * RATE))
        level = loudness
        for i in range(len(out)):
            out[i] += level * math.sin(step * i)
            level *= fall
    return [sample * attack_at(i / RATE, attack) for i, sample in enumerate(out)]


def flute(note, seconds, attack=0.04, release=0.12, vibrato=0.004):
    """A soft sustained tone with a slow vibrato."""
    frequency = pitch(note)
    out, phase = [], 0.0
    for i in range(round(seconds * RATE)):
        time = i / RATE
        phase += 2 * math.pi * frequency * (1 + vibrato * math.sin(2 * math.pi * 5 * time)) / RATE
        level = attack_at(time, attack) * attack_at(seconds - time, release)
        out.append(level * (math.sin(phase) + 0.18 * math.sin(2 * phase) + 0.06 * math.sin(3 * phase)))
    return out


def glide(start, end, seconds, decay):
    """A tone that slides from `start` to `end` evenly to the ear."""
    low, high = math.log(pitch(start)), math.log(pitch(end))
    out, phase = [], 0.0
    for i in range(round(seconds * RATE)):
        time = i / RATE
        phase += 2 * math.pi * math.exp(low + (high - low) * time / seconds) / RATE
        level = attack_at(time, 0.004) * math.exp(-time / decay)
        out.append(level * (math.sin(phase) + 0.15 * math.sin(2 * phase)))
    return out


def spring(start, end, seconds, decay, wobble):
    """A ball's "boing": a glide whose pitch wobbles `wobble` times a second, less and less."""
    out, phase = [], 0.0
    for i in range(round(seconds * RATE)):
        time = i / RATE
        bend = 1 + 0.22 * math.exp(-time / (decay * 0.7)) * math.sin(2 * math.pi * wobble * time)
        frequency = pitch(end) + (pitch(start) - pitch(end)) * math.exp(-time / 0.05)
        phase += 2 * math.pi * frequency * bend / RATE
        out.append(attack_at(time, 0.003) * math.exp(-time / decay) * (math.sin(phase) + 0.2 * math.sin(2 * phase)))
    return out


def brush(seconds, low, high, seed, rise=0.4):
    """Noise swelling and fading like a hand over paper; its colour goes from `low` to `high` Hz."""
    noise = random.Random(seed)
    out, band, smooth = [], 0.0, 0.0
    count = round(seconds * RATE)
    for i in range(count):
        part = i / count
        cutoff = low * (high / low) ** part
        factor = 2 * math.sin(math.pi * cutoff / RATE)
        # state-variable band pass: keeps the noise soft instead of hissing
        smooth += factor * band
        band += factor * (noise.uniform(-1, 1) - smooth - 0.9 * band)
        swell = part / rise if part < rise else (1 - part) / (1 - rise)
        out.append(band * swell * swell)
    return out


def mix(seconds, *parts):
    """Parts are (start, loudness, sound); what reaches beyond `seconds` fades out over the last 12 ms."""
    out = silence(seconds)
    for start, loudness, sound in parts:
        first = round(start * RATE)
        for i, sample in enumerate(sound[:max(0, len(out) - first)]):
            out[first + i] += loudness * sample
    tail = min(len(out), round(0.012 * RATE))
    for i in range(tail):
        out[-1 - i] *= i / tail
    return out


def write_wav(path, sound, peak):
    """Writes 16-bit mono with its loudest sample at `peak` of full scale."""
    loudest = max(abs(sample) for sample in sound)
    samples = array.array("h", (round(sample / loudest * peak * 32767) for sample in sound))
    with wave.open(str(path), "wb") as out:
        out.setnchannels(1)
        out.setsampwidth(2)
        out.setframerate(RATE)
        out.writeframes(samples.tobytes())
