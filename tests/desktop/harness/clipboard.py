# SPDX-License-Identifier: MIT
"""The clipboard of a session, from the outside."""

import json
import subprocess
import sys
from collections.abc import Sequence
from pathlib import Path

from .offer import Offer
from .selection_reader import SelectionReader
from .session import Session
from .waiting import wait_until

_HERE = Path(__file__).parent


class Clipboard:
    """Puts contents there in the name of other programs and reads them back."""

    def __init__(self, session: Session) -> None:
        self._session = session
        self._reader = SelectionReader(session.display)

    def close(self) -> None:
        """Ends the reader's connection."""
        self._reader.close()

    def own(
        self,
        offers: Sequence[Offer],
        selection: str = "CLIPBOARD",
        silent: Sequence[str] = (),
        padding: int = 0,
    ) -> subprocess.Popen[bytes]:
        """Starts a program that owns a selection, and waits until it does.

        The targets named as silent are offered and never answered; with TARGETS among them the
        program says nothing at all. The padding is entries of its list of targets that serve no
        one.
        """
        order = {
            "selection": selection,
            "silent": list(silent),
            "padding": padding,
            "offers": [offer.to_json() for offer in offers],
        }
        return self._start("clipboard_process", json.dumps(order).encode())

    def start_manager(self) -> subprocess.Popen[bytes]:
        """Starts a clipboard manager."""
        return self._start("clipboard_manager", b"")

    def contents(self, selection: str = "CLIPBOARD") -> list[Offer]:
        """Everything that a selection holds; nothing where it has no owner."""
        return self._reader.offers(selection)

    def targets(self, selection: str = "CLIPBOARD") -> list[str]:
        """What the owner of a selection offers, its services included."""
        return self._reader.targets(selection)

    def data(self, target: str, selection: str = "CLIPBOARD") -> bytes | None:
        """What a selection holds for one target, if anything."""
        offer = self._reader.read(selection, target)
        return offer.data if offer else None

    def is_owned(self, selection: str = "CLIPBOARD") -> bool:
        """Whether anybody owns a selection."""
        return self._reader.is_owned(selection)

    def wait_for(self, offers: Sequence[Offer], selection: str = "CLIPBOARD") -> None:
        """Waits until a selection holds exactly these offers."""
        wait_until(
            lambda: self.contents(selection) == list(offers),
            f"{selection} with {[offer.target for offer in offers]}",
            interval=0.05,
        )

    def wait_data(self, target: str, data: bytes) -> None:
        """Waits until the clipboard holds this for one target."""
        wait_until(lambda: self.data(target) == data, f"{target} with {data!r}")

    def wait_empty(self, selection: str = "CLIPBOARD") -> None:
        """Waits until nobody owns a selection."""
        wait_until(lambda: not self.is_owned(selection), f"an empty {selection}")

    def _start(self, module: str, order: bytes) -> subprocess.Popen[bytes]:
        process = self._session.start(
            [sys.executable, "-B", "-m", f"{__package__}.{module}"],
            {"PYTHONPATH": str(_HERE.parent)},
            stdin=subprocess.PIPE,
            stdout=subprocess.PIPE,
        )
        assert process.stdin and process.stdout
        process.stdin.write(order)
        process.stdin.close()
        if process.stdout.readline().strip() != b"owned":
            raise RuntimeError(f"{module} does not own:\n{self._session.logs()}")
        return process
