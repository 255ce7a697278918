# SPDX-License-Identifier: MIT
"""The user's clipboard around an insertion."""

from contextlib import ExitStack
from types import TracebackType

from harness.offer import Offer
from harness.waiting import Timeout, wait_until

from .clipboards import CONTENTS, Contents
from .desk import Desk
from .managers import MANAGERS, Manager
from .troubled_owner import pattern

_REQUESTS = {"TARGETS", "TIMESTAMP", "MULTIPLE", "SAVE_TARGETS", "DELETE"}


class ClipboardState:
    """Puts it there, and compares it afterwards byte for byte."""

    def __init__(self, desk: Desk, name: str) -> None:
        self._desk = desk
        self._name = name
        self._undo = ExitStack()
        self._large = 0
        self._expected: list[Offer] = []

    def __enter__(self) -> "ClipboardState":
        with ExitStack() as undo:
            if self._name in MANAGERS:
                undo.callback(Manager(self._desk.session, self._name).stop)
            if self._name == "own":
                self._copy_here()
            else:
                self._copy_elsewhere(CONTENTS[self._name](), undo)
            self._undo = undo.pop_all()
        return self

    def __exit__(
        self,
        kind: type[BaseException] | None,
        error: BaseException | None,
        trace: TracebackType | None,
    ) -> None:
        self._undo.close()

    def wait_restored(self) -> None:
        """Waits until the clipboard holds again what it held."""
        try:
            wait_until(self._is_restored, f"the clipboard ({self._name}) as it was", interval=0.02)
        except Timeout as timeout:
            timeout.add_note(f"It offers {self._desk.clipboard.targets()}")
            raise

    def check(self) -> None:
        """Compares what is there byte for byte."""
        held = self._desk.clipboard.contents()
        if self._large:
            held = [offer for offer in held if not self._is_the_large_one(offer)]
        if held != self._expected:
            raise AssertionError(f"the clipboard holds {_names(held)}, not {_names(self._expected)}")

    def _copy_elsewhere(self, contents: Contents, undo: ExitStack) -> None:
        self._expected = contents.expected()
        self._large = contents.large
        if not contents.is_owned:
            self._desk.clear_clipboard()
            return
        order = {"selection": "CLIPBOARD", "large": contents.large, **contents.trouble}
        order["offers"] = [offer.to_json() for offer in contents.offers]
        owner = self._desk.own(order)
        undo.callback(self._desk.session.stop, owner)

    def _copy_here(self) -> None:
        self._desk.clear_clipboard()
        self._desk.quorvane.action("copy")
        clipboard = self._desk.clipboard
        wait_until(clipboard.is_owned, "the text that Quorvane copied")
        self._expected = clipboard.contents()

    def _is_restored(self) -> bool:
        if not self._expected:
            return not self._desk.clipboard.is_owned()
        names = [name for name in self._desk.clipboard.targets() if name not in _REQUESTS]
        expected = [offer.target for offer in self._expected]
        return names in (expected, [*expected, "image/tiff"] if self._large else expected)

    def _is_the_large_one(self, offer: Offer) -> bool:
        if offer.target != "image/tiff":
            return False
        if offer.data != pattern(self._large):
            raise AssertionError(f"sixty megabytes came back as {len(offer.data)} bytes")
        return True


def _names(offers: list[Offer]) -> list[str]:
    return [f"{offer.target} ({len(offer.data)} bytes)" for offer in offers]
