#!/usr/bin/env python3
"""Writes tide.txt: three days of a semi-diurnal tide at 10-minute steps,
as a tide table for `vex tide import` (date, UTC time, height in metres
above chart datum).

The heights are a sum of the four largest tidal constituents with
amplitudes and phases typical of a North Sea harbour: the principal lunar
(M2) and solar (S2) semi-diurnal tides, which beat into springs and neaps,
and the lunisolar (K1) and principal lunar (O1) diurnal tides, which make
successive high waters unequal. Run it again to rebuild the file; the
output is the same every time.
"""
import datetime
import math
import pathlib

MEAN_LEVEL = 2.10  # metres above chart datum
# (name, amplitude m, period h, phase deg)
CONSTITUENTS = [
    ("M2", 1.45, 12.4206012, 40.0),
    ("S2", 0.48, 12.0, 85.0),
    ("K1", 0.12, 23.9344697, 200.0),
    ("O1", 0.09, 25.8193417, 180.0),
]
START = datetime.datetime(2026, 11, 20, 0, 0, tzinfo=datetime.timezone.utc)
STEP_MINUTES = 10
DAYS = 3


def height(hours):
    h = MEAN_LEVEL
    for _, amplitude, period, phase in CONSTITUENTS:
        h += amplitude * math.cos(2 * math.pi * hours / period - math.radians(phase))
    return h


def main():
    lines = [
        "# Tide heights above chart datum (m), times in UTC, every 10 minutes.",
        "# Made by make-tide-sample.py from the M2, S2, K1 and O1 constituents.",
        "# date      time   height",
    ]
    for i in range(DAYS * 24 * 60 // STEP_MINUTES + 1):
        when = START + datetime.timedelta(minutes=i * STEP_MINUTES)
        hours = i * STEP_MINUTES / 60
        lines.append(f"{when:%Y-%m-%d} {when:%H:%M}  {height(hours):.3f}")
    out = pathlib.Path(__file__).with_name("tide.txt")
    out.write_bytes(("\r\n".join(lines) + "\r\n").encode("utf-8"))


if __name__ == "__main__":
    main()
