# SPDX-License-Identifier: MIT
"""Prints "YEAR MONTH FIRST_WEEKDAY WEEK/WEEK/..." by CPython's calendar module, where a week is its
seven days, 0 for those of other months. Weekdays count from Monday as 0."""
import calendar

for first_weekday in (0, 6):
    for year in (1899, 1900, 1970, *range(1999, 2001), *range(2024, 2028), 2100):
        for month in range(1, 13):
            weeks = calendar.Calendar(first_weekday).monthdayscalendar(year, month)
            print(year, month, first_weekday, "/".join(",".join(map(str, w)) for w in weeks))
