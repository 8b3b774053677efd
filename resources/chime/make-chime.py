#!/usr/bin/env python3
"""Makes the arrival chime: two soft struck tones, a fifth apart, in under a second.

Usage: make-chime.py OUTPUT.wav
"""

import array
import math
import sys
import wave

RATE = 48_000  # samples a second
LENGTH = 0.92  # seconds
PEAK = 0.5  # of full scale (-6 dB)

# Start in seconds, frequency in hertz, loudness: D5, then A5, in equal temperament (A4 = 440 Hz).
TONES = [(0.0, 587.33, 0.8), (0.11, 880.0, 1.0)]

# The partials of a struck bar: ratio to the lowest frequency, loudness, seconds to 1/e. The higher ones decay faster, for a
# softer sound.
PARTIALS = [(1.0, 1.0, 0.26), (2.0, 0.28, 0.17), (3.0, 0.10, 0.09), (4.16, 0.05, 0.05)]

ATTACK = 0.006  # seconds; without it each tone starts with a click
FADE = 0.12  # seconds to silence at the end


def tone(time, frequency):
    if time < 0:
        return 0.0
    strike = min(1.0, time / ATTACK)
    return strike * sum(
        loudness * math.exp(-time / decay) * math.sin(2 * math.pi * frequency * ratio * time)
        for ratio, loudness, decay in PARTIALS
    )


def chime():
    count = round(RATE * LENGTH)
    raw = []
    for index in range(count):
        time = index / RATE
        fade = min(1.0, (LENGTH - time) / FADE)
        raw.append(fade * sum(loudness * tone(time - start, frequency) for start, frequency, loudness in TONES))
    scale = PEAK * 32767 / max(abs(value) for value in raw)
    return array.array("h", (round(value * scale) for value in raw))


def main():
    samples = chime()
    if sys.byteorder == "big":
        samples.byteswap()
    with wave.open(sys.argv[1], "wb") as output:
        output.setnchannels(1)
        output.setsampwidth(2)
        output.setframerate(RATE)
        output.writeframes(samples.tobytes())


if __name__ == "__main__":
    main()
