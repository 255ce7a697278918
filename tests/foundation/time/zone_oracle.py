# SPDX-License-Identifier: MIT
"""Prints "IDENTIFIER SECONDS OFFSET" for every zone of this system, by CPython's zoneinfo."""
import re
from datetime import datetime, timezone
from zoneinfo import ZoneInfo

INDEX = "/usr/share/zoneinfo/tzdata.zi"

# Each January and July since 1890, and both sides of the end of 32-bit time and of the years that
# data files list one by one.
INSTANTS = [
    int(datetime(year, month, 15, 12, tzinfo=timezone.utc).timestamp())
    for year in [*range(1890, 2042), 2100, 2199]
    for month in (1, 7)
] + [-(2**31), 2**31 - 1, 2**31]


def identifiers():
    with open(INDEX, encoding="utf-8") as index:
        return sorted(set(re.findall(r"^(?:Z|L \S+) (\S+)", index.read(), re.MULTILINE)))


for identifier in identifiers():
    zone = ZoneInfo(identifier)
    for instant in INSTANTS:
        offset = datetime.fromtimestamp(instant, zone).utcoffset()
        print(identifier, instant, int(offset.total_seconds()))
