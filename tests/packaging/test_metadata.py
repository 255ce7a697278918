# SPDX-License-Identifier: MIT
"""The files for menus, software centres, readers of manuals and packagers."""

import configparser
import re
import tempfile
import unittest
import xml.etree.ElementTree as ElementTree
from pathlib import Path

import yaml
from tree import ID, LANGUAGES, TREE, install, run

_PACKAGING = TREE / "packaging"

# What a validator says, and why it is so.
_EXPECTED_REMARKS = {
    # It is the name on the bus as well, which the desktop file has to be called by.
    "cid-contains-uppercase-letter",
    # The place that later releases look in is unknown to Debian 12's.
    "developer-name-tag-deprecated",
    "developer-info-missing",
    # There is none, and none is made up.
    "url-homepage-missing",
}

_ACTIONS = TREE / "src" / "app" / "DesktopAction.cpp"

# What a user may look for, or change.
_FILES = ("defaults.json", "windows.json", f"autostart/{ID}.desktop")
_VARIABLES = (
    *("LC_TIME", "LC_ALL", "LANG", "TZ", "TZDIR"),
    *("XDG_CONFIG_HOME", "XDG_STATE_HOME", "XDG_ACTIVATION_TOKEN", "DESKTOP_STARTUP_ID"),
    *("DISPLAY", "WAYLAND_DISPLAY", "DBUS_SESSION_BUS_ADDRESS", "SWAYSOCK"),
    *("QUORVANE_BACKEND", "QT_LOGGING_RULES"),
)

# What only developers need: a compiler is there wherever packages are built.
_NOT_FOR_PACKAGES = {"g++", "ccache", "libgtest-dev", "libgmock-dev", "libbenchmark-dev"}


# The elements of the metainfo that people read, but for names.
_TRANSLATED = {"summary", "p", "li", "keyword", "caption"}
_LANGUAGE = "{http://www.w3.org/XML/1998/namespace}lang"


def marks(manual: str) -> list[str]:
    """Its headings, paragraphs and marked words, in their order."""
    return [mark for mark in re.findall(r"^\.\w+", manual, re.MULTILINE) if mark != ".ad"]


def version() -> str:
    """What the build calls it."""
    found = re.search(r"project\(quorvane VERSION ([\d.]+)", text(TREE / "CMakeLists.txt"))
    assert found
    return found[1]


def text(file: Path) -> str:
    """The contents of a file."""
    return file.read_text(encoding="utf-8")


class Metadata(unittest.TestCase):
    """What is installed, seen by those that it is for."""

    @classmethod
    def setUpClass(cls) -> None:
        folder = tempfile.TemporaryDirectory(prefix="qv-metadata-")
        cls.addClassCleanup(folder.cleanup)
        install("/usr", DESTDIR=folder.name)
        cls.share = Path(folder.name) / "usr" / "share"

    def test_menus_take_the_desktop_file(self) -> None:
        file = self.share / "applications" / f"{ID}.desktop"
        checked = run(["desktop-file-validate", file])
        self.assertEqual((0, ""), (checked.returncode, checked.stdout))

    def test_each_action_of_the_menu_is_called_on_the_bus(self) -> None:
        file = configparser.ConfigParser(interpolation=None)
        file.read(self.share / "applications" / f"{ID}.desktop")
        actions = file["Desktop Entry"]["Actions"].strip(";").split(";")
        known = text(_ACTIONS)
        for action in actions:
            command = file[f"Desktop Action {action}"]["Exec"]
            self.assertEqual(f"gapplication action {ID} {action}", command)
            self.assertIn(f'DesktopAction{{"{action}"_L1', known)

    def test_software_centres_take_the_metainfo(self) -> None:
        file = self.share / "metainfo" / f"{ID}.metainfo.xml"
        checked = run(["appstreamcli", "validate", "--pedantic", "--no-net", "--no-color", file])
        remarks = re.findall(r"^[EWIP]: \S+ (\S+)", checked.stdout, re.MULTILINE)
        self.assertLessEqual(set(remarks), _EXPECTED_REMARKS, checked.stdout)
        self.assertIn("successful", checked.stdout)

    def test_the_manual_has_no_mistakes(self) -> None:
        actions = re.findall(r'DesktopAction\{"(\w+)"_L1', text(_ACTIONS))
        self.assertIn("toggle", actions)
        for folder in ("man1", *(f"{language}/man1" for language in LANGUAGES)):
            file = self.share / "man" / folder / "quorvane.1"
            checked = run(["man", "--warnings", "-E", "UTF-8", "-l", "-Tutf8", "-Z", file])
            self.assertEqual(0, checked.returncode)
            warnings = [line for line in checked.stdout.splitlines() if "warning" in line]
            self.assertEqual([], warnings, folder)
            shown = run(["man", "-l", file], MANWIDTH="80", MANPAGER="cat").stdout
            for word in (version(), "--hidden", *actions, *_FILES, *_VARIABLES):
                self.assertIn(word, shown)

    def test_the_manual_says_the_same_in_every_language(self) -> None:
        wanted = marks(text(_PACKAGING / "quorvane.1.in"))
        for language in LANGUAGES:
            self.assertEqual(wanted, marks(text(_PACKAGING / f"quorvane.{language}.1.in")))

    def test_the_menu_entry_is_translated(self) -> None:
        file = configparser.ConfigParser(interpolation=None)
        file.read(self.share / "applications" / f"{ID}.desktop")
        for section in file.values():
            for key in ("genericname", "comment", "keywords", "name"):
                if key in section and section[key] != "Quorvane":
                    for language in LANGUAGES:
                        self.assertTrue(section.get(f"{key}[{language}]"), f"{key} {language}")

    def test_what_software_centres_show_is_translated(self) -> None:
        tree = ElementTree.parse(self.share / "metainfo" / f"{ID}.metainfo.xml")
        for parent in tree.iter():
            for tag in _TRANSLATED & {child.tag for child in parent}:
                ours = [child.get(_LANGUAGE) for child in parent.findall(tag)]
                for language in LANGUAGES:
                    self.assertEqual(ours.count(None), ours.count(language), f"{tag} {language}")

    def test_prose_is_spelled_as_in_the_dictionary(self) -> None:
        files = ["README.md", "CHANGELOG.md", "CONTRIBUTING.md", "docs", "packaging", "dev", "tools"]
        # The dictionary is English.
        skipped = ",".join(["*.png", *(f"quorvane.{language}.1.in" for language in LANGUAGES)])
        foreign = r"^.*(xml:lang=|\[[a-z_A-Z]+\]=).*$"
        options = ["--skip", skipped, "--ignore-regex", foreign]
        checked = run(["codespell", *options, *(TREE / name for name in files)])
        self.assertEqual((0, ""), (checked.returncode, checked.stdout))


class Sources(unittest.TestCase):
    """What the tree says in more than one place."""

    def test_every_file_has_the_version_of_the_build(self) -> None:
        changes = re.findall(r"^## \[([\d.]+)\] - ([\d-]+)$", text(TREE / "CHANGELOG.md"), re.M)
        debian = text(_PACKAGING / "debian" / "changelog").split()[1]
        metainfo = ElementTree.parse(_PACKAGING / f"{ID}.metainfo.xml")
        releases = [
            (release.get("version"), release.get("date"))
            for release in metainfo.findall("releases/release")
        ]
        self.assertEqual(version(), changes[0][0])
        self.assertRegex(debian, rf"^\({re.escape(version())}-\d+\)$")
        self.assertEqual(changes, releases)

    def test_the_package_needs_what_a_build_installs(self) -> None:
        listed = re.search(r"packages_build=\(([^)]*)\)", text(TREE / "tools/dev/packages.sh"))
        assert listed
        control = text(_PACKAGING / "debian" / "control").split("\nPackage:")[0]
        declared = set(re.findall(r"^ ([a-z0-9.+-]+)", control, re.MULTILINE))
        self.assertLessEqual(set(listed[1].split()) - _NOT_FOR_PACKAGES, declared)

    def test_flatpaks_builder_understands_the_manifest(self) -> None:
        manifest = _PACKAGING / "flatpak" / f"{ID}.yml"
        with tempfile.TemporaryDirectory(prefix="qv-flatpak-") as folder:
            # It leaves files where it runs, and warns of what it does not know.
            builder = ["env", f"--chdir={folder}", "flatpak-builder", "--show-manifest"]
            checked = run([*builder, manifest], G_DEBUG="fatal-warnings")
        self.assertEqual(0, checked.returncode, checked.stdout)

    def test_the_sandbox_asks_for_nothing_but_display_and_tray(self) -> None:
        manifest = yaml.safe_load(text(_PACKAGING / "flatpak" / f"{ID}.yml"))
        self.assertEqual(ID, manifest["id"])
        self.assertEqual("quorvane", manifest["command"])
        self.assertEqual(
            [
                "--socket=wayland",
                "--socket=fallback-x11",
                "--share=ipc",
                "--talk-name=org.kde.StatusNotifierWatcher",
            ],
            manifest["finish-args"],
        )
        for option in manifest["modules"][0]["config-opts"]:
            name = option.removeprefix("-D").split("=")[0]
            known = name.startswith("CMAKE_") or any(
                f"option({name} " in text(file)
                for file in (TREE / "CMakeLists.txt", *TREE.glob("cmake/*.cmake"))
            )
            self.assertTrue(known, option)


if __name__ == "__main__":
    unittest.main()
