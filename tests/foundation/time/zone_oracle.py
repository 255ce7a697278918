# SPDX-License-Identifier: MIT
"""Prints "IDENTIFIER SECONDS OFFSET" for every zone of this system, by CPython's zoneinfo, at the
instants that are given as seconds since 1970, or over two centuries."""
import sys
from datetime import datetime, timezone
from zoneinfo import ZoneInfo, ZoneInfoNotFoundError

INDEX = "/usr/share/zoneinfo/tzdata.zi"

# Each January and July since 1890, and both sides of the end of 32-bit time and of the years that
# data files list one by one.
INSTANTS = [int(each) for each in sys.argv[1:]] or [
    int(datetime(year, month, 15, 12, tzinfo=timezone.utc).timestamp())
    for year in [*range(1890, 2042), 2100, 2199]
    for month in (1, 7)
] + [-(2**31), 2**31 - 1, 2**31]


def index():
    """The target of every link, by its name; of a zone, nothing."""
    entries = {}
    with open(INDEX, encoding="utf-8") as lines:
        for line in lines:
            match line.split():
                case ["Z", zone, *_]:
                    entries[zone] = None
                case ["L", target, link]:
                    entries[link] = target
    return entries


def zone_named(identifier, entries):
    """Some distributions have no files for old names, which are links to those that there are."""
    try:
        return ZoneInfo(identifier)
    except ZoneInfoNotFoundError:
        return zone_named(entries[identifier], entries)


entries = index()
for identifier in sorted(entries):
    zone = zone_named(identifier, entries)
    for instant in INSTANTS:
        offset = datetime.fromtimestamp(instant, zone).utcoffset()
        print(identifier, instant, int(offset.total_seconds()))
