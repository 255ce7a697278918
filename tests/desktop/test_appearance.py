# SPDX-License-Identifier: MIT
"""Light, dark, accent and contrast follow the desktop while the panel is open."""

from Xlib.display import Display

from harness import portal
from harness.accessible import Accessible
from harness.case import DesktopCase
from harness.portal import Portal
from harness.quorvane import Quorvane
from harness.screenshot import Picture
from harness.settings_manager import SettingsManager
from harness.waiting import PATIENCE, wait_until

_LIGHT_GROUND = 0xF6F6F8
_LIGHT_ACCENT = 0x3457D5
_DARK_GROUND = 0x1D1E21
_DARK_ACCENT = 0x4666EA
_RED = 0x990000  # dark enough for white text: it is taken as it is
_WHITE = 0xFFFFFF

_INSIDE = 4  # points from an edge to where there is neither frame nor label
_BELOW_HEADER = 100


class Appearance(DesktopCase):
    """What the user changes in the desktop's settings, seen on the screen."""

    def setUp(self) -> None:
        super().setUp()
        self.display = Display(self.session.display)
        self.addCleanup(self.display.close)

    def start_portal(self, silent: bool = False) -> Portal:
        """A portal on the session's bus, for the length of the test."""
        started = Portal(self.session.environment["DBUS_SESSION_BUS_ADDRESS"], silent)
        self.addCleanup(started.close)
        return started

    def background(self, quorvane: Quorvane) -> int:
        """The colour of the panel, left of everything in it."""
        return Picture(self.display, quorvane.wait_active()).color(_INSIDE, _BELOW_HEADER)

    def fill(self, button: Accessible) -> int:
        """The colour of a button, beside its label."""
        left, top, _, height = button.extents
        screen = Picture(self.display, self.display.screen().root.id)
        return screen.color(left + 2 * _INSIDE, top + height // 2)

    def wait_appearance(self, quorvane: Quorvane, background: int, accent: int) -> None:
        """Waits until the panel and its Insert have these colours."""
        insert = quorvane.tree().find_role("push button", "Insert")
        wanted = f"background #{background:06x}, accent #{accent:06x}"
        wait_until(
            lambda: (self.background(quorvane), self.fill(insert)) == (background, accent),
            wanted,
            interval=0.05,
        )

    def test_an_open_panel_follows_every_change(self) -> None:
        desktop = self.start_portal()
        desktop.set_scheme(portal.LIGHT)
        quorvane = Quorvane(self.session)
        self.wait_appearance(quorvane, _LIGHT_GROUND, _LIGHT_ACCENT)
        desktop.set_scheme(portal.DARK)
        self.wait_appearance(quorvane, _DARK_GROUND, _DARK_ACCENT)
        desktop.set_accent(0x99 / 0xFF, 0, 0)
        self.wait_appearance(quorvane, _DARK_GROUND, _RED)
        desktop.set_scheme(portal.NO_PREFERENCE)
        self.wait_appearance(quorvane, _LIGHT_GROUND, _RED)
        desktop.set_high_contrast(True)
        self.wait_appearance(quorvane, _WHITE, _RED)
        desktop.set_accent(-1, -1, -1)
        desktop.set_high_contrast(False)
        self.wait_appearance(quorvane, _LIGHT_GROUND, _LIGHT_ACCENT)

    def test_what_the_desktop_says_before_the_start_shows(self) -> None:
        desktop = self.start_portal()
        desktop.set_scheme(portal.DARK)
        self.wait_appearance(Quorvane(self.session), _DARK_GROUND, _DARK_ACCENT)

    def test_a_portal_that_comes_later_is_heard(self) -> None:
        quorvane = Quorvane(self.session)
        self.wait_appearance(quorvane, _LIGHT_GROUND, _LIGHT_ACCENT)
        desktop = self.start_portal()
        self.assertTrue(desktop.asked.wait(PATIENCE))
        desktop.set_scheme(portal.DARK)
        self.wait_appearance(quorvane, _DARK_GROUND, _DARK_ACCENT)

    def start_settings_manager(self, **settings: str | int) -> SettingsManager:
        """A settings manager on the session's display, for the length of the test."""
        named = {name.replace("_", "/", 1): value for name, value in settings.items()}
        started = SettingsManager(self.session.display, named)
        self.addCleanup(started.close)
        return started

    def test_a_desktop_without_a_portal_tells_its_theme_by_xsettings(self) -> None:
        manager = self.start_settings_manager(Net_ThemeName="Greybird-dark")
        quorvane = Quorvane(self.session)
        self.wait_appearance(quorvane, _DARK_GROUND, _DARK_ACCENT)
        manager.set({"Net/ThemeName": "Greybird"})
        self.wait_appearance(quorvane, _LIGHT_GROUND, _LIGHT_ACCENT)
        manager.set({"Gtk/ApplicationPreferDarkTheme": 1})
        self.wait_appearance(quorvane, _DARK_GROUND, _DARK_ACCENT)
        desktop = self.start_portal()
        desktop.set_scheme(portal.LIGHT)
        self.wait_appearance(quorvane, _LIGHT_GROUND, _LIGHT_ACCENT)

    def test_gtk_s_file_of_settings_is_followed_where_nobody_shares_them(self) -> None:
        folder = self.session.directory("config") / "gtk-3.0"
        folder.mkdir(parents=True)
        file = folder / "settings.ini"
        file.write_text("[Settings]\ngtk-theme-name=Adwaita-dark\n")
        quorvane = Quorvane(self.session)
        self.wait_appearance(quorvane, _DARK_GROUND, _DARK_ACCENT)
        file.write_text("[Settings]\ngtk-theme-name=Adwaita\n")
        self.wait_appearance(quorvane, _LIGHT_GROUND, _LIGHT_ACCENT)

    def test_without_a_portal_the_program_works(self) -> None:
        editor = self.editor()
        quorvane = self.hidden_quorvane()
        editor.wait_active()
        self.insert(quorvane, editor)

    def test_a_portal_that_never_answers_is_not_waited_for(self) -> None:
        desktop = self.start_portal(silent=True)
        editor = self.editor()
        quorvane = Quorvane(self.session)
        quorvane.wait_active()
        self.assertTrue(desktop.asked.wait(PATIENCE))
        self.wait_appearance(quorvane, _LIGHT_GROUND, _LIGHT_ACCENT)
        quorvane.hide()
        editor.wait_active()
        self.insert(quorvane, editor)
        self.assertEqual(0, quorvane.quit())
