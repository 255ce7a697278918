# SPDX-License-Identifier: MIT
"""Texts are in the language of messages, dates in that of times."""

from datetime import datetime
from zoneinfo import ZoneInfo

from harness.case import DesktopCase
from harness.expected import ZONE
from harness.quorvane import Quorvane


class Languages(DesktopCase):
    """The program starts in the locale of its environment."""

    def start(self, **locale: str) -> Quorvane:
        quorvane = Quorvane(self.session, **locale)
        quorvane.wait_active()
        return quorvane

    def test_texts_and_dates_have_locales_of_their_own(self) -> None:
        quorvane = self.start(LANG="de_DE.UTF-8", LC_TIME="en_US.UTF-8")
        tree = quorvane.tree()
        tree.find_role("push button", "Einfügen")
        month = datetime.now(ZoneInfo(ZONE)).strftime("%B")
        self.assertIn(month, tree.find_role("text", "Vorschau").text)

    def test_the_list_of_languages_comes_before_the_locale(self) -> None:
        quorvane = self.start(LANG="de_DE.UTF-8", LANGUAGE="tlh:ja:fr")
        quorvane.tree().find_role("push button", "挿入")

    def test_a_language_from_right_to_left_mirrors_the_panel(self) -> None:
        close, more = self.places(LANG="en_US.UTF-8", names=("Close", "More"))
        self.assertGreater(close, more)
        close, more = self.places(LANG="ar_EG.UTF-8", names=("إغلاق", "المزيد"))
        self.assertLess(close, more)

    def places(self, names: tuple[str, str], **locale: str) -> list[int]:
        """How far to the right the controls of these names are."""
        quorvane = self.start(**locale)
        places = [quorvane.tree().find(name).extents[0] for name in names]
        quorvane.quit()
        return places

    def test_text_goes_into_another_program_in_every_language(self) -> None:
        editor = self.editor()
        quorvane = Quorvane(self.session, LANG="ar_EG.UTF-8")
        quorvane.hide()
        self.summon(quorvane)
        expected = quorvane.tree().find_role("text", "معاينة").text
        quorvane.tree().find_role("push button", "إدراج").press()
        editor.wait_text(expected)
