# SPDX-License-Identifier: MIT
"""Key events that the X server treats as those of a real keyboard."""

from collections.abc import Iterator
from contextlib import contextmanager
from enum import IntEnum

from Xlib import X
from Xlib.display import Display
from Xlib.ext import xinput, xtest
from Xlib.protocol import rq


class Key(IntEnum):
    """Keys by position, as X key codes: the evdev code plus eight."""

    ESCAPE = 9
    DIGIT_1 = 10
    DIGIT_3 = 12
    DIGIT_4 = 13
    DIGIT_5 = 14
    DIGIT_7 = 16
    DIGIT_0 = 19
    EQUAL = 21
    BACKSPACE = 22
    TAB = 23
    Q = 24
    W = 25
    E = 26
    R = 27
    T = 28
    Y = 29
    I = 31
    O = 32
    P = 33
    RETURN = 36
    CONTROL = 37
    A = 38
    S = 39
    D = 40
    J = 44
    K = 45
    L = 46
    SEMICOLON = 47
    APOSTROPHE = 48
    SHIFT = 50
    X = 53
    C = 54
    V = 55
    B = 56
    N = 57
    M = 58
    COMMA = 59
    ALT = 64
    SPACE = 65
    CAPS_LOCK = 66
    ALT_GR = 108
    F5 = 71
    HOME = 110
    UP = 111
    PAGE_UP = 112
    LEFT = 113
    RIGHT = 114
    END = 115
    DOWN = 116
    INSERT = 118
    SUPER = 133
    MENU = 135


SHORTCUT = (Key.CONTROL, Key.SHIFT, Key.SUPER, Key.D)
"""The shortcut that Quorvane listens to as long as the user records no other."""

INSERT = (Key.CONTROL, Key.RETURN)
"""The panel's key for Insert."""

_DEVICE_KEY_PRESS = 1  # XI_DeviceKeyPress, from the X Input extension's first event on
_DEVICE_KEY_RELEASE = 2


class _FakeDeviceInput(rq.Request):
    """XTestFakeInput for one device; the module's own request knows the core keyboard only."""

    _request = rq.Struct(
        rq.Card8("opcode"),
        rq.Opcode(2),
        rq.RequestLength(),
        rq.Card8("event_type"),
        rq.Card8("detail"),
        rq.Pad(2),
        rq.Card32("time"),
        rq.Pad(4 + 8 + 4 + 7),
        rq.Card8("device"),
    )


class Keyboard:
    """Presses and releases keys on one display."""

    def __init__(self, display: str) -> None:
        self._display = Display(display)

    def close(self) -> None:
        """Ends the connection; keys still held stay down, as they would on a real keyboard."""
        self._display.close()

    def press(self, key: Key) -> None:
        """Puts a key down."""
        self._display.xtest_fake_input(X.KeyPress, key)
        self._display.sync()

    def release(self, key: Key) -> None:
        """Lets a key go."""
        self._display.xtest_fake_input(X.KeyRelease, key)
        self._display.sync()

    def tap(self, *keys: Key) -> None:
        """Puts keys down in order and lets them go in reverse, as fast as the server takes them."""
        for key in keys:
            self._display.xtest_fake_input(X.KeyPress, key)
        for key in reversed(keys):
            self._display.xtest_fake_input(X.KeyRelease, key)
        self._display.sync()

    @contextmanager
    def held(self, *keys: Key) -> Iterator[None]:
        """Keeps keys down on a keyboard that synthetic key events do not come from.

        What a program lets go through XTEST is let go on XTEST's own keyboard; a user's finger is
        on another one, and stays down.
        """
        device = self._physical_keyboard()
        for key in keys:
            self._fake_on(device, _DEVICE_KEY_PRESS, key)
        try:
            yield
        finally:
            for key in reversed(keys):
                self._fake_on(device, _DEVICE_KEY_RELEASE, key)

    def _physical_keyboard(self) -> int:
        for device in self._display.xinput_query_device(xinput.AllDevices).devices:
            if device.use == xinput.SlaveKeyboard and "XTEST" not in str(device.name):
                return int(device.deviceid)
        raise LookupError("no keyboard but XTEST's")

    def _fake_on(self, device: int, event: int, key: Key) -> None:
        first_event = self._display.query_extension("XInputExtension").first_event
        _FakeDeviceInput(
            display=self._display.display,
            opcode=self._display.display.get_extension_major(xtest.extname),
            event_type=first_event + event,
            detail=key,
            time=X.CurrentTime,
            device=device,
        )
        self._display.sync()
