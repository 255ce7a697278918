# SPDX-License-Identifier: MIT
"""Makes data/typed-dates.tsv: what people type for dates in a dozen locales, and the days they mean.

The words and patterns are those of CLDR's own XML files (Debian's unicode-cldr-core), whose folder
common/main is the argument; the days are counted by CPython. Rows are LOCALE, TEXT, DAY; today is
TODAY. Run it again only to add locales: the rows stand for what people write, not for a release."""
import datetime
import pathlib
import re
import sys
import xml.etree.ElementTree as ElementTree

TODAY = datetime.date(2024, 3, 9)  # a Saturday

DAYS = [datetime.date.fromisoformat(day) for day in (
    "2024-03-09", "2024-02-29", "2023-12-31", "2026-10-05", "1999-01-01", "2030-11-20")]

DIGITS = {"latn": "0123456789", "arab": "٠١٢٣٤٥٦٧٨٩", "arabext": "۰۱۲۳۴۵۶۷۸۹"}

# Locale, the files to look in, its calendar, its digits.
LOCALES = [
    ("en_US", ["en"], "gregorian", "latn"),
    ("en_GB", ["en_GB", "en_001", "en"], "gregorian", "latn"),
    ("de_DE", ["de"], "gregorian", "latn"),
    ("fr_FR", ["fr"], "gregorian", "latn"),
    ("es_ES", ["es"], "gregorian", "latn"),
    ("pt_BR", ["pt"], "gregorian", "latn"),
    ("sv_SE", ["sv"], "gregorian", "latn"),
    ("he_IL", ["he"], "gregorian", "latn"),
    ("ja_JP", ["ja"], "gregorian", "latn"),
    ("ar_EG", ["ar_EG", "ar"], "gregorian", "arab"),
    ("fa_IR", ["fa"], "persian", "arabext"),
    ("th_TH", ["th"], "buddhist", "latn"),
]

# The first days of Persian years, by the calendars printed in Iran.
NOWRUZ = {year: datetime.date(year + 621, 3, day) for year, day in (
    (1377, 21), (1402, 21), (1403, 20), (1405, 21), (1409, 21))}


def persian(day: datetime.date) -> tuple[int, int, int]:
    """Year, month and day: six months of 31 days, then months of 30."""
    year, first = max((y, d) for y, d in NOWRUZ.items() if d <= day)
    ordinal = (day - first).days
    if ordinal < 186:
        return year, ordinal // 31 + 1, ordinal % 31 + 1
    return year, (ordinal - 186) // 30 + 7, (ordinal - 186) % 30 + 1


def fields(day: datetime.date, calendar: str) -> tuple[int, int, int]:
    if calendar == "persian":
        return persian(day)
    return day.year + (543 if calendar == "buddhist" else 0), day.month, day.day


class Locale:
    """What the files of a locale say, the nearest first."""

    def __init__(self, folder: pathlib.Path, files: list[str], calendar: str, digits: str) -> None:
        self.roots = [ElementTree.parse(folder / f"{name}.xml").getroot() for name in files]
        self.calendar = calendar
        self.digits = DIGITS[digits]

    def texts(self, path: str) -> list[str]:
        for root in self.roots:
            found = [e.text for e in root.findall(path) if e.get("alt") is None and e.text]
            if found:
                return found
        return []

    def named(self, path: str) -> list[str]:
        """One for each type; a file may have only those in which it differs."""
        names: dict[str, str] = {}
        for root in reversed(self.roots):
            for element in root.findall(path):
                if element.get("alt") is None and element.text:
                    names[element.get("type")] = element.text
        return list(names.values())

    def pattern(self, length: str) -> str:
        kind = "gregorian" if self.calendar == "gregorian" else "generic"
        path = (f".//calendar[@type='{kind}']/dateFormats/dateFormatLength[@type='{length}']"
                "/dateFormat/pattern")
        return self.texts(path)[0]

    def months(self, width: str) -> list[str]:
        kind = "persian" if self.calendar == "persian" else "gregorian"
        path = (f".//calendar[@type='{kind}']/months/monthContext[@type='format']"
                f"/monthWidth[@type='{width}']/month")
        # Where they have no short names the long ones stand for them.
        return self.named(path) or self.months("wide")

    def era(self, length: int) -> str:
        width = {5: "eraNarrow", 4: "eraNames"}.get(length, "eraAbbr")
        path = f".//calendar[@type='{self.calendar}']/eras/{width}/era"
        return (self.texts(path) or self.texts(path.replace(width, "eraAbbr")) or [""])[-1]

    def number(self, number: int, length: int) -> str:
        return "".join(self.digits[int(digit)] for digit in f"{number:0{length}d}")

    def field(self, letters: str, day: datetime.date) -> str:
        year, month, number = fields(day, self.calendar)
        letter, length = letters[0], len(letters)
        if letter == "y":
            return self.number(year % 100, 2) if length == 2 else self.number(year, 1)
        if letter in "ML" and length > 2:
            return self.months("abbreviated" if length == 3 else "wide")[month - 1]
        if letter in "ML":
            return self.number(month, length)
        return self.number(number, length) if letter == "d" else self.era(length)

    def write(self, day: datetime.date, length: str) -> str:
        parts = re.findall(r"'([^']*)'|(([a-zA-Z])\3*)|([^a-zA-Z']+)", self.pattern(length))
        return "".join(
            self.field(letters, day) if letters else quoted or plain
            for quoted, letters, _, plain in parts)

    def relative(self, unit: str) -> list[tuple[int, str]]:
        for root in self.roots:
            found = root.findall(f".//field[@type='{unit}']/relative")
            if found:
                return [(int(e.get("type")), e.text) for e in found if e.text]
        return []

    def weekdays(self, width: str) -> list[str]:
        path = (".//calendar[@type='gregorian']/days/dayContext[@type='format']"
                f"/dayWidth[@type='{width}']/day")
        return self.named(path)


def moved(unit: str, number: int) -> datetime.date:
    if unit == "month":
        month = TODAY.month - 1 + number
        return TODAY.replace(year=TODAY.year + month // 12, month=month % 12 + 1)
    if unit == "year":
        return TODAY.replace(year=TODAY.year + number)
    return TODAY + datetime.timedelta(days=number * (7 if unit == "week" else 1))


def rows(locale: Locale) -> list[tuple[str, datetime.date]]:
    result = []
    for length in ("short", "medium", "long"):
        result += [(locale.write(day, length), day) for day in DAYS]
    units = ["day", "week"] + (["month", "year"] if locale.calendar != "persian" else [])
    for unit in units:
        result += [(word, moved(unit, number)) for number, word in locale.relative(unit)]
    for width in ("wide", "abbreviated"):
        for index, name in enumerate(locale.weekdays(width)):
            # CLDR counts from Sunday, CPython from Monday.
            ahead = ((index + 6) % 7 - TODAY.weekday()) % 7
            result.append((name, TODAY + datetime.timedelta(days=ahead)))
    return result


def main() -> None:
    folder = pathlib.Path(sys.argv[1])
    for name, *what in LOCALES:
        for text, day in rows(Locale(folder, *what)):
            print(name, text, day, sep="\t")


main()
