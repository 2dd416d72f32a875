#!/usr/bin/env python3
# SPDX-FileCopyrightText: The Pixmallow authors
# SPDX-License-Identifier: MIT
"""Makes the program's own sounds, src/skins/sounds/*.wav, out of sines and noise.

usage: make-sounds.py [FOLDER]

Every run makes the same files. Names and places in the catalogue are in src/skins/sounds.qrc.
"""
import array
import math
import pathlib
import random
import sys
import wave

RATE = 44_100
PEAK = 0.8


def silence(seconds):
    return [0.0] * round(seconds * RATE)


def add(samples, start, part):
    """Mixes a part into the samples from that second on."""
    first = round(start * RATE)
    for index, value in enumerate(part[: len(samples) - first]):
        samples[first + index] += value


def partial(frequency, level, decay, seconds, attack=0.0008):
    """A sine that fades by e^(-decay·t)."""
    return [
        level * math.exp(-decay * t) * min(t / attack, 1) * math.sin(math.tau * frequency * t)
        for t in (n / RATE for n in range(round(seconds * RATE)))
    ]


def knock(noise, frequency, width, level, decay, seconds):
    """Noise through a resonance of that frequency and width in Hz: something hard is hit."""
    radius = math.exp(-math.pi * width / RATE)
    feed, back = 2 * radius * math.cos(math.tau * frequency / RATE), radius * radius
    last = before = 0.0
    out = []
    for n in range(round(seconds * RATE)):
        t = n / RATE
        value = noise.uniform(-1, 1) * math.exp(-decay * t) * min(t / 0.0004, 1)
        last, before = value * (1 - radius) * level + feed * last - back * before, last
        out.append(last)
    return out


def screen_capture():
    """A mirror swings up, a curtain runs, and it falls back."""
    noise = random.Random(1)
    samples = silence(0.26)
    for start, level in ((0.0, 1.0), (0.105, 0.8)):
        add(samples, start, knock(noise, 2_900, 900, 6 * level, 130, 0.09))
        add(samples, start, knock(noise, 1_150, 350, 7 * level, 45, 0.12))
        add(samples, start + 0.009, knock(noise, 5_200, 1_800, 3 * level, 260, 0.05))
        add(samples, start, partial(190, 0.25 * level, 40, 0.14))
    add(samples, 0.02, knock(noise, 6_500, 3_000, 0.5, 22, 0.10))
    return samples


def pop():
    """A bubble: a tone that rises while it fades."""
    samples, phase = silence(0.14), 0.0
    for n in range(len(samples)):
        t = n / RATE
        phase += math.tau * (380 + 900 * (1 - math.exp(-t / 0.035))) / RATE
        samples[n] = math.sin(phase) * math.exp(-38 * t) * min(t / 0.002, 1)
    return samples


def tink():
    """A fingernail on a small glass."""
    samples = silence(0.26)
    for frequency, level, decay in ((2_480, 1, 26), (5_130, 0.45, 38), (8_260, 0.22, 60)):
        add(samples, 0, partial(frequency, level, decay, 0.26))
    add(samples, 0, knock(random.Random(2), 7_000, 4_000, 1.2, 500, 0.02))
    return samples


def glass():
    """A wine glass: partials that beat slowly against each other."""
    samples = silence(0.95)
    for frequency, level, decay in (
        (1_046.5, 1, 4.6),
        (1_049.0, 0.3, 4.4),
        (2_452, 0.5, 6.5),
        (4_330, 0.22, 9),
        (6_610, 0.1, 14),
    ):
        add(samples, 0, partial(frequency, level, decay, 0.95, attack=0.003))
    return samples


def finished(samples):
    """At the common peak, and silent at the end whatever was cut off there."""
    fade = round(0.02 * RATE)
    for n in range(fade):
        samples[-1 - n] *= n / fade
    gain = PEAK / max(map(abs, samples))
    return [sample * gain for sample in samples]


def write(path, samples):
    frames = array.array("h", (round(32_767 * sample) for sample in finished(samples)))
    if sys.byteorder == "big":
        frames.byteswap()
    with wave.open(str(path), "wb") as file:
        file.setparams((1, 2, RATE, len(frames), "NONE", None))
        file.writeframes(frames.tobytes())


def main():
    beside = pathlib.Path(__file__).resolve().parents[1] / "src/skins/sounds"
    folder = pathlib.Path(sys.argv[1]) if len(sys.argv) > 1 else beside
    folder.mkdir(parents=True, exist_ok=True)
    for make in (screen_capture, pop, tink, glass):
        write(folder / f"{make.__name__.replace('_', '-')}.wav", make())


main()
