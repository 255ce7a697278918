# SPDX-License-Identifier: MIT
"""The list of shortcuts that System Settings shows and changes."""

from ..message_bus import MessageBus
from ..waiting import wait_until

_DAEMON = ("org.kde.kglobalaccel", "/kglobalaccel", "org.kde.KGlobalAccel")
_SET_PRESENT, _AS_ASKED = 2, 4

SHIFT, CONTROL, ALT, META = 1 << 25, 1 << 26, 1 << 27, 1 << 28
"""Qt's modifier keys."""

OURS = ["org.quorvane.Quorvane", "toggle", "Quorvane", "Show or Hide"]
"""How Quorvane's shortcut is listed."""


class GlobalShortcuts:
    """What a user does in System Settings, and what other programs do by themselves."""

    def __init__(self, address: str) -> None:
        self._bus = MessageBus(address)

    def close(self) -> None:
        """Ends the connection."""
        self._bus.close()

    def keys(self, action: list[str] = OURS) -> list[int]:
        """The first key of each shortcut of an action, as Qt numbers them."""
        (sequences,) = self._ask("shortcutKeys", "(as)", action)
        return [sequence[0][0] for sequence in sequences]

    def wait_keys(self, *keys: int) -> None:
        """Waits until Quorvane's shortcut is this."""
        wait_until(lambda: self.keys() == list(keys), f"{keys} in System Settings")

    def is_active(self) -> bool:
        """Whether a press of Quorvane's shortcut is kept from applications."""
        path = self._ask("getComponent", "(s)", OURS[0])[0]
        return self._bus.call(_DAEMON[0], path, "org.kde.kglobalaccel.Component", "isActive")[0]

    def change(self, *keys: int) -> None:
        """Gives Quorvane another shortcut, or takes it away, as System Settings does."""
        self._ask("setForeignShortcutKeys", "(asa(ai))", OURS, _sequences(keys))

    def take(self, program: str, key: int) -> None:
        """Has another program register a shortcut."""
        action = [program.lower(), "action", program, "Something"]
        self._ask("doRegister", "(as)", action)
        self._ask(
            "setShortcutKeys", "(asa(ai)u)", action, _sequences([key]), _SET_PRESENT | _AS_ASKED
        )

    def give_back(self, program: str) -> None:
        """Has that program forget its shortcut."""
        self._ask("unregister", "(ss)", program.lower(), "action")

    def holder(self, key: int) -> str:
        """Which program a shortcut belongs to; empty for none."""
        (action,) = self._ask("actionList", "((ai))", ([key, 0, 0, 0],))
        return action[2] if action else ""

    def _ask(self, method: str, signature: str, *values: object) -> tuple[object, ...]:
        return self._bus.call(*_DAEMON, method, signature, *values)


def _sequences(keys: list[int] | tuple[int, ...]) -> list[tuple[list[int]]]:
    return [([key, 0, 0, 0],) for key in keys]
