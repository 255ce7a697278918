# SPDX-License-Identifier: MIT
"""Every text of the interface has its translation, whole and well made, in every catalogue."""

import os
import re
import shutil
import subprocess
import tempfile
import unittest
from collections import Counter
from collections.abc import Callable
from pathlib import Path

from catalogue import TREE, Message, file_of, languages, messages

# The forms that a language has for a number of things.
_PLURAL_FORMS = {"ar": 6, "de": 2, "es": 2, "fr": 2, "ja": 1}
_QUOTES = {"ar": "«»", "de": "„“", "es": "«»", "fr": "«»", "ja": "「」"}
_PLACEHOLDER = re.compile(r"%(?:\d+|L?n)")
_MNEMONIC = re.compile(r"&(\w)")
_QUOTED = re.compile(r"“([^”%]+)”")
# Keys are named as they are printed, whatever the same word means elsewhere.
_KEY_NAMES = "KeyNames"
_KEYS_IN_MENUS = "QShortcut"
# Spoken beside each other in one language, told apart in another: the words of a pop-up's list and
# of a control.
_TOLD_APART = {"AM or PM"}


class Catalogues(unittest.TestCase):
    """What holds for each language's catalogue."""

    def each(self, check: Callable[[str, Message], None]) -> None:
        """Calls `check` with every language and message."""
        for language in languages():
            for message in messages(file_of(language)):
                with self.subTest(language, source=message.source):
                    check(language, message)

    def each_form(self, check: Callable[[str, str, str], None]) -> None:
        """Calls `check` with every language, source and translation."""

        def check_forms(language: str, message: Message) -> None:
            for form in message.forms:
                check(language, message.source, form)

        self.each(check_forms)

    def test_there_are_catalogues(self) -> None:
        self.assertEqual(sorted(_PLURAL_FORMS), languages())

    def test_no_text_of_the_sources_is_missing_and_none_is_left_over(self) -> None:
        lupdate = os.environ["QUORVANE_LUPDATE"]
        with tempfile.TemporaryDirectory(prefix="qv-catalogues-") as folder:
            for language in languages():
                copy = Path(shutil.copy(file_of(language), folder))
                subprocess.run(
                    [lupdate, "-silent", "-locations", "none", TREE / "src", "-ts", copy],
                    check=True,
                )
                wanted = [m.key for m in messages(copy) if m.state != "vanished"]
                found = [message.key for message in messages(file_of(language))]
                self.assertEqual(sorted(wanted), sorted(found), f"{language}: run ./dev translate")

    def test_every_text_is_translated(self) -> None:
        def check(language: str, message: Message) -> None:
            self.assertEqual("finished", message.state)
            wanted = _PLURAL_FORMS[language] if message.is_plural else 1
            self.assertEqual(wanted, len(message.forms))
            self.assertTrue(all(message.forms))

        self.each(check)

    def test_what_is_filled_in_has_its_place(self) -> None:
        def check(_: str, message: Message) -> None:
            wanted = Counter(_PLACEHOLDER.findall(message.source))
            for form in message.forms:
                found = Counter(_PLACEHOLDER.findall(form))
                # "One time zone" needs no number.
                missing = {"%1"} if message.is_plural else set()
                self.assertLessEqual(set(wanted - found), missing, form)
                self.assertFalse(found - wanted, form)

        self.each(check)

    def test_texts_end_as_in_the_sources(self) -> None:
        def check(_: str, source: str, form: str) -> None:
            for ending in ("…", ":"):
                self.assertEqual(source.endswith(ending), form.endswith(ending), form)
            # Others may end with an abbreviation.
            if source.endswith("."):
                self.assertRegex(form, "[.。]$")
            self.assertEqual(form.strip(), form)
            self.assertNotIn("  ", form)

        self.each_form(check)

    def test_signs_are_those_of_print(self) -> None:
        def check(language: str, source: str, form: str) -> None:
            self.assertNotRegex(form, r"""\.\.\.|"|(?<=\w)'(?=\w)""")
            for quote in _QUOTES[language] if "“" in source else "":
                self.assertIn(quote, form)
            if language == "fr":
                self.assertNotRegex(form, "[^\u00a0\u202f](?:[:;!?](?:\\s|$)|»)|«[^\u00a0\u202f]")

        self.each_form(check)

    def test_keys_of_menus_are_there_and_tell_entries_apart(self) -> None:
        for language in languages():
            keys: dict[str, list[str]] = {}
            for message in messages(file_of(language)):
                wanted = len(_MNEMONIC.findall(message.source))
                found = _MNEMONIC.findall(message.forms[0])
                self.assertEqual(wanted, len(found), message.forms[0])
                keys.setdefault(message.context, []).extend(key.upper() for key in found)
            for context, taken in keys.items():
                self.assertEqual(len(set(taken)), len(taken), f"{language}, {context}: {taken}")

    def test_one_text_is_translated_in_one_way(self) -> None:
        for language in languages():
            ways: dict[str, set[tuple[str, ...]]] = {}
            for message in messages(file_of(language)):
                if message.context != _KEY_NAMES and message.source not in _TOLD_APART:
                    ways.setdefault(message.source, set()).add(message.forms)
            self.assertEqual([], [way for way in ways.items() if len(way[1]) > 1], language)

    def test_keys_are_called_alike_in_menus_and_on_caps(self) -> None:
        for language in languages():
            all_messages = messages(file_of(language))
            caps = {m.source: m.forms for m in all_messages if m.context == _KEY_NAMES}
            for message in all_messages:
                if message.context == _KEYS_IN_MENUS:
                    self.assertEqual(caps[message.source], message.forms, language)

    def test_what_a_sentence_refers_to_is_named_as_it_is_shown(self) -> None:
        for language in languages():
            shown = {message.source: message.forms[0] for message in messages(file_of(language))}
            for message in messages(file_of(language)):
                for name in _QUOTED.findall(message.source):
                    self.assertIn(shown[name], message.forms[0], language)


if __name__ == "__main__":
    unittest.main()
