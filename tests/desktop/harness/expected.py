# SPDX-License-Identifier: MIT
"""What Quorvane's texts have to be, from the calendar and the time zone database alone."""

from datetime import datetime
from zoneinfo import ZoneInfo

ZONE = "America/New_York"
"""The zone in which the tests run Quorvane: one whose abbreviation English speakers know."""

_MONTHS = (
    "January February March April May June July August September October November December"
).split()


def now() -> datetime:
    """The present, as a clock on the wall in the tests' zone shows it."""
    return datetime.now(ZoneInfo(ZONE))


def long_form(moment: datetime) -> str:
    """The format "Long" in English: "November 21, 2026 at 4:05 AM EST"."""
    hour = moment.hour % 12 or 12
    half = "AM" if moment.hour < 12 else "PM"
    day = f"{_MONTHS[moment.month - 1]} {moment.day}, {moment.year}"
    return f"{day} at {hour}:{moment.minute:02} {half} {moment.tzname()}"
