# SPDX-License-Identifier: MIT
"""Quorvane's icon in a bar under KWin."""

from harness.keys import SHORTCUT
from harness.kwin.case import KwinCase
from harness.kwin.bar import Bar
from harness.quorvane import Quorvane
from harness.status_item import StatusItem


class Tray(KwinCase):
    """A bar with a host of status items, which clicks are made on."""

    def test_clicks_on_the_icon_show_and_hide_the_panel(self) -> None:
        bar = Bar(self.session)
        bar.start()
        quorvane = self.hidden_quorvane()
        bar.wait_icon()
        x, y = bar.place()
        for _ in range(3):
            # Apart from each other, or the bar takes them for a double click.
            self.mouse.click_at(x - 6, y)
            quorvane.wait_active()
            self.mouse.click_at(x + 6, y)
            quorvane.wait_hidden()

    def test_a_bar_that_comes_later_has_the_icon_and_its_menu_too(self) -> None:
        quorvane = self.hidden_quorvane()
        bar = Bar(self.session)
        bar.start()
        bar.wait_icon()
        self.mouse.click_at(*bar.place())
        quorvane.wait_active()
        item = StatusItem(self.session.bus.address)
        self.addCleanup(item.close)
        self.assertIn("Quit Quorvane", item.menu())
        item.choose("Quit Quorvane")
        self.assertEqual(0, quorvane.process.wait(10))
