# SPDX-License-Identifier: MIT
"""What an installation puts where."""

import configparser
import os
import struct
import tempfile
import unittest
from pathlib import Path

from tree import ID, LANGUAGES, install, installed_files

_SIZES = (16, 22, 24, 32, 48, 64, 128, 256, 512)
_FILES = sorted(
    [
        "bin/quorvane",
        f"share/applications/{ID}.desktop",
        f"share/dbus-1/services/{ID}.service",
        f"share/icons/hicolor/scalable/apps/{ID}.svg",
        f"share/icons/hicolor/symbolic/apps/{ID}-symbolic.svg",
        "share/man/man1/quorvane.1",
        f"share/metainfo/{ID}.metainfo.xml",
    ]
    + [f"share/man/{language}/man1/quorvane.1" for language in LANGUAGES]
    + [f"share/icons/hicolor/{size}x{size}/apps/{ID}.png" for size in _SIZES]
)


def entry(file: Path, section: str) -> configparser.SectionProxy:
    """A section of a file of the desktop's."""
    parser = configparser.ConfigParser(interpolation=None)
    parser.optionxform = str  # type: ignore[assignment, method-assign]
    parser.read(file)
    return parser[section]


class Installation(unittest.TestCase):
    """A build is installed below a folder of the test's own."""

    def setUp(self) -> None:
        folder = tempfile.TemporaryDirectory(prefix="qv-install-")
        self.addCleanup(folder.cleanup)
        self.folder = Path(folder.name)

    def test_everything_is_below_the_prefix_and_nothing_else(self) -> None:
        install(self.folder / "opt")
        self.assertEqual(_FILES, installed_files(self.folder / "opt"))
        self.assertEqual(["opt"], os.listdir(self.folder))

    def test_files_name_the_program_where_it_is_installed(self) -> None:
        install(self.folder)
        self.expect_program(self.folder, str(self.folder / "bin" / "quorvane"))

    def test_a_staged_installation_names_the_place_that_it_goes_to(self) -> None:
        install("/usr", DESTDIR=str(self.folder))
        self.assertEqual(_FILES, installed_files(self.folder / "usr"))
        self.assertEqual(["usr"], os.listdir(self.folder))
        self.expect_program(self.folder / "usr", "/usr/bin/quorvane")

    def expect_program(self, prefix: Path, program: str) -> None:
        """The menu's file calls the program, the bus calls it hidden."""
        menu = entry(prefix / "share" / "applications" / f"{ID}.desktop", "Desktop Entry")
        self.assertEqual(program, menu["Exec"])
        service = entry(prefix / "share/dbus-1/services" / f"{ID}.service", "D-BUS Service")
        self.assertEqual(f"{program} --hidden", service["Exec"])
        self.assertEqual(ID, service["Name"])

    def test_pictures_of_the_icon_have_their_sizes(self) -> None:
        install(self.folder)
        for size in _SIZES:
            picture = self.folder / f"share/icons/hicolor/{size}x{size}/apps/{ID}.png"
            header = picture.read_bytes()[:24]
            self.assertEqual(b"\x89PNG", header[:4])
            self.assertEqual((size, size), struct.unpack(">II", header[16:24]))


if __name__ == "__main__":
    unittest.main()
