# SPDX-License-Identifier: MIT
"""Prints "TEXT DAY SECONDS OFFSET" by CPython's reading of ISO 8601: DAY is "-" for a text that is
none, SECONDS of the day and OFFSET in seconds are "-" where the text has none. Spaces in TEXT are
printed as "_"."""
import datetime
import itertools
import re

DATES = ("2024-03-09", "2024-02-29", "2023-02-29", "2024-02-30", "2024-13-01", "2024-00-10",
         "2024-01-00", "0001-01-01", "9999-12-31", "0000-01-01", "1582-10-10", "1500-02-29",
         "20240309", "20230229", "2024-W10-6", "2024W106", "2020-W53-5", "2024-W53-1",
         "2025-W01-1", "2024-W00-1", "2024-W10-8")
TIMES = ("", "T00:00", "T14:05", "T23:59", "T14:60", "T14:05:30", "T14:05:60", " 14:05",
         " 14:05:30", "T14:05:30.25", "T1405", "T140530")
OFFSETS = ("", "Z", "+01:00", "-05:00", "+0530", "-08", "+24:00", "-00:30")

for date, time, offset in itertools.product(DATES, TIMES, OFFSETS):
    text = date + time + offset
    if offset and not time:
        continue
    try:
        parsed = datetime.datetime.fromisoformat(text)
        day = str(parsed.date())
        seconds = parsed.hour * 3600 + parsed.minute * 60 + parsed.second if time else "-"
        shift = "-" if parsed.tzinfo is None else int(parsed.utcoffset().total_seconds())
    except ValueError:
        day = seconds = shift = "-"
    print(re.sub(" ", "_", text), day, seconds, shift)
