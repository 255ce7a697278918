# SPDX-License-Identifier: MIT
"""The clipboard of a session under Wayland, from the outside."""

from collections.abc import Sequence
from pathlib import Path

from ..offer import Offer
from ..waiting import wait_until
from .clipboard_owner import ClipboardOwner
from .data_control import DataControl


class WaylandClipboard:
    """Puts contents there in the name of other programs and reads them back."""

    def __init__(self, display: Path) -> None:
        self._display = display
        self._reader = DataControl(display)
        self._owners: list[ClipboardOwner] = []

    def close(self) -> None:
        """Ends all programs that have copied something, and the reader."""
        for owner in self._owners:
            owner.close()
        self._reader.close()

    def own(
        self, offers: Sequence[Offer], selection: str = "CLIPBOARD", silent: Sequence[str] = ()
    ) -> ClipboardOwner:
        """Has a program copy something; types named as silent are offered and never written."""
        owner = ClipboardOwner(self._display, offers, selection, silent)
        self._owners.append(owner)
        return owner

    def contents(self, selection: str = "CLIPBOARD") -> list[Offer]:
        """Everything that a clipboard holds."""
        offers = []
        for name in self._reader.types(selection):
            data = self._reader.read(selection, name)
            if data is not None:
                offers.append(Offer(name, data))
        return offers

    def targets(self, selection: str = "CLIPBOARD") -> list[str]:
        """The types that a clipboard holds."""
        return self._reader.types(selection)

    def data(self, target: str, selection: str = "CLIPBOARD") -> bytes | None:
        """What a clipboard holds of one type, if anything."""
        return self._reader.read(selection, target)

    def is_owned(self, selection: str = "CLIPBOARD") -> bool:
        """Whether a clipboard holds anything."""
        return bool(self._reader.types(selection))

    def wait_for(self, offers: Sequence[Offer], selection: str = "CLIPBOARD") -> None:
        """Waits until a clipboard holds exactly these offers."""
        names = [offer.target for offer in offers]
        # The names first: what passes in between is not asked for its data.
        wait_until(
            lambda: self.targets(selection) == names
            and self.contents(selection) == list(offers),
            f"{selection} with {names}",
            interval=0.05,
        )

    def wait_data(self, target: str, data: bytes) -> None:
        """Waits until the clipboard holds this for one type."""
        wait_until(lambda: self.data(target) == data, f"{target} with {data!r}")

    def wait_empty(self, selection: str = "CLIPBOARD") -> None:
        """Waits until a clipboard holds nothing."""
        wait_until(lambda: not self.is_owned(selection), f"an empty {selection}")
