# SPDX-License-Identifier: MIT
"""Where windows stand: what is the user's, what is not, and screens that come and go."""

from harness.floating_window import FloatingWindow
from harness.keys import Key
from harness.place import CONTENT_WIDTH, PlaceCase
from harness.quorvane import Quorvane
from harness.waiting import wait_until


class PanelsPlace(PlaceCase):
    """What the user gave the panel stays, and nothing else does."""

    def test_five_shows_leave_a_panel_that_nobody_moved_in_the_middle(self) -> None:
        quorvane = Quorvane(self.session)
        for _ in range(5):
            self.wait_in_the_middle(quorvane)
            self.show_again(quorvane)
        self.assertIsNone(self.saved_place())

    def test_five_shows_and_a_restart_leave_a_dragged_panel_at_its_place(self) -> None:
        quorvane = Quorvane(self.session)
        self.wait_in_the_middle(quorvane)
        place = self.drag(quorvane)
        for _ in range(5):
            self.show_again(quorvane)
            self.wait_at(quorvane, *place)
        self.assertEqual(quorvane.quit(), 0)
        quorvane = Quorvane(self.session)
        self.wait_at(quorvane, *place)
        self.assertEqual(self.saved_place(), place)

    def test_a_killed_program_has_saved_its_place(self) -> None:
        quorvane = Quorvane(self.session)
        self.move(quorvane, 70, 50)
        quorvane.process.kill()
        quorvane.process.wait()
        quorvane = Quorvane(self.session)
        self.wait_at(quorvane, 70, 50)

    def test_growth_is_not_what_the_next_start_shows(self) -> None:
        quorvane = Quorvane(self.session)
        self.wait_in_the_middle(quorvane)
        height = self.frame(quorvane)[3]
        self.toggle_range(quorvane)
        wait_until(lambda: self.frame(quorvane)[3] > height, "the panel to grow")
        place = self.drag(quorvane)
        quorvane.quit()
        quorvane = Quorvane(self.session)
        self.wait_at(quorvane, *place)
        self.assertEqual(self.frame(quorvane)[3], height)

    def test_a_panel_that_grew_comes_back(self) -> None:
        quorvane = Quorvane(self.session)
        self.wait_in_the_middle(quorvane)
        height = self.frame(quorvane)[3]
        before = 160, 800 - height - 10, CONTENT_WIDTH, height
        self.move(quorvane, *before[:2])
        self.point_outside()
        self.toggle_range(quorvane)
        wait_until(lambda: self.frame(quorvane)[1] < before[1], "the panel to grow upwards")
        self.toggle_range(quorvane)
        wait_until(lambda: self.frame(quorvane) == before, "the panel to come back")
        self.assertEqual(self.saved_place(), before[:2])

    def test_a_height_that_the_user_gives_goes_to_the_preview_and_stays(self) -> None:
        quorvane = Quorvane(self.session)
        self.move(quorvane, 60, 40)
        preview = self.preview(quorvane)
        before = preview.extents[3]
        height = self.frame(quorvane)[3] + 60
        self.change(quorvane, (62, 42, CONTENT_WIDTH, height))
        wait_until(lambda: preview.extents[3] == before + 60, "the preview to have the surplus")
        # A row more takes it back from there.
        self.mouse.click(quorvane.tree().find_role("check box", "to"))
        wait_until(lambda: preview.extents[3] < before + 60, "the preview to give some of it")
        self.assertEqual(self.frame(quorvane)[3], height)
        quorvane.quit()
        quorvane = Quorvane(self.session)
        self.wait_at(quorvane, 62, 42)
        self.assertEqual(self.frame(quorvane)[3], height)


class Clicks(PlaceCase):
    """Presses on the panel's background that are no drag."""

    def setUp(self) -> None:
        super().setUp()
        self.quorvane = Quorvane(self.session)
        self.wait_in_the_middle(self.quorvane)
        self.before = self.frame(self.quorvane)
        self.start = self.before[0] + 6, self.preview(self.quorvane).extents[1] + 4

    def assert_does_not_stick(self) -> None:
        for distance in (40, 80, 120):
            self.mouse.move_to(self.start[0] - distance, self.start[1] - distance)
            # Answered once the program has seen the pointer, and the window manager its request.
            self.preview(self.quorvane)
            self.session.windows.let_manager_catch_up()
        self.assertEqual(self.frame(self.quorvane), self.before)

    def test_a_click_of_no_length_does_not_stick_the_panel_to_the_pointer(self) -> None:
        self.mouse.click_at(*self.start)
        self.assert_does_not_stick()

    def test_nor_does_a_flick_that_is_over_before_it_is_seen(self) -> None:
        self.mouse.flick(self.start, (self.start[0] - 30, self.start[1] - 30))
        self.assert_does_not_stick()


class Scaled(PlaceCase):
    """Places are in the program's points: on a screen of another scale, and mirrored."""

    def check(self, **environment: str) -> None:
        quorvane = Quorvane(self.session, **environment)
        for _ in range(2):
            self.wait_in_the_middle(quorvane)
            self.show_again(quorvane)
        self.wait_in_the_middle(quorvane)
        place = self.drag(quorvane)
        for _ in range(3):
            self.show_again(quorvane)
            self.wait_at(quorvane, *place, tolerance=1)
        quorvane.quit()
        quorvane = Quorvane(self.session, **environment)
        self.wait_at(quorvane, *place, tolerance=1)

    def test_at_one_and_a_half(self) -> None:
        self.check(QT_SCALE_FACTOR="1.5")

    def test_from_right_to_left(self) -> None:
        self.check(LANG="he_IL.UTF-8")


class Screens(PlaceCase):
    """Two screens, of which one goes."""

    middles = (320, 960)

    def setUp(self) -> None:
        super().setUp()
        self.session.run(["xrandr", "--setmonitor", "A", "640/169x800/211+0+0", "screen"])
        self.session.run(["xrandr", "--setmonitor", "B", "640/169x800/211+640+0", "none"])

    def lose_the_second(self) -> None:
        self.session.run(["xrandr", "--delmonitor", "B"])

    def wait_centred(self, quorvane: Quorvane, left: int) -> None:
        wait_until(
            lambda: self.frame(quorvane)[0] == left + (640 - CONTENT_WIDTH) // 2,
            f"the panel in the middle of the screen at {left}",
        )

    def wait_centred_on_the_first(self, quorvane: Quorvane) -> None:
        self.wait_centred(quorvane, 0)

    def test_until_it_is_moved_it_comes_where_the_user_works(self) -> None:
        quorvane = self.hidden_quorvane()
        work = FloatingWindow(self.session)
        self.addCleanup(work.close)
        for left in (640, 0, 640):
            work.show_at(left + 60)
            self.summon(quorvane)
            self.wait_centred(quorvane, left)
            quorvane.hide()
        self.assertIsNone(self.saved_place())
        self.summon(quorvane)
        self.move(quorvane, 20, 100)
        quorvane.hide()
        work.show_at(700)
        self.summon(quorvane)
        self.wait_at(quorvane, 20, 100)

    def test_a_screen_lost_while_the_panel_shows(self) -> None:
        quorvane = Quorvane(self.session)
        self.move(quorvane, 700, 100)
        self.lose_the_second()
        # Whatever corner of it the window manager may have pulled over there.
        self.wait_centred_on_the_first(quorvane)
        self.assertTrue(quorvane.is_active())

    def test_a_screen_lost_while_the_panel_is_hidden(self) -> None:
        quorvane = Quorvane(self.session)
        self.move(quorvane, 700, 100)
        quorvane.hide()
        self.lose_the_second()
        self.summon(quorvane)
        self.wait_centred_on_the_first(quorvane)

    def test_a_screen_lost_between_two_runs(self) -> None:
        quorvane = Quorvane(self.session)
        self.move(quorvane, 700, 100)
        quorvane.quit()
        self.lose_the_second()
        quorvane = Quorvane(self.session)
        quorvane.wait_active()
        self.wait_centred_on_the_first(quorvane)

    def test_a_panel_that_a_screen_still_shows_stays(self) -> None:
        quorvane = Quorvane(self.session)
        self.move(quorvane, 400, 100)
        self.lose_the_second()
        quorvane.hide()
        self.summon(quorvane)
        self.wait_at(quorvane, 400, 100)


class Preferences(PlaceCase):
    """The preferences' window."""

    size = (400, 540)

    def setUp(self) -> None:
        super().setUp()
        self.quorvane = Quorvane(self.session)
        self.quorvane.wait_active()

    def open(self) -> int:
        self.quorvane.action("preferences")
        windows, pid = self.session.windows, self.quorvane.process.pid
        window = windows.wait(
            lambda: windows.of_process(pid, "Quorvane Preferences"), "the preferences to show"
        )
        windows.wait(lambda: windows.active() == window, "the preferences to be active")
        return window

    def close(self, window: int) -> None:
        self.keyboard.tap(Key.ESCAPE)
        windows = self.session.windows
        windows.wait(lambda: window not in windows.shown(), "the preferences to close")

    def wait_there(self, window: int, place: tuple[int, int]) -> None:
        windows = self.session.windows
        wait_until(lambda: windows.frame(window)[:2] == place, f"the preferences at {place}")

    def test_they_are_a_dialog_that_no_window_manager_tiles(self) -> None:
        window = self.open()
        self.assertEqual(self.session.windows.frame(window)[2:], self.size)

    def test_ctrl_w_closes_them_where_the_key_types_another_letter_too(self) -> None:
        windows = self.session.windows
        for layout in ("us", "ru,us"):
            self.session.run(["setxkbmap", layout])
            window = self.open()
            self.keyboard.tap(Key.CONTROL, Key.W)
            windows.wait(lambda: window not in windows.shown(), "the preferences to close")
        self.quorvane.action("toggle")
        self.quorvane.wait_active()

    def test_they_come_back_where_the_user_put_them(self) -> None:
        windows = self.session.windows
        window = self.open()
        self.wait_steady(
            self.quorvane,
            lambda: self.is_in_the_middle(windows.frame(window)),
            "the preferences in the middle of the screen",
        )
        with self.keyboard.held(Key.SUPER):
            windows.move(window, 90, 70)
            wait_until(lambda: self.saved("Preferences") is not None, "the place to be saved")
        place = windows.frame(window)[:2]
        for _ in range(3):
            self.close(window)
            window = self.open()
            self.wait_there(window, place)
