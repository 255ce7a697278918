# SPDX-License-Identifier: MIT
"""LibreOffice Writer, read through its own interface for programs."""

import select
import subprocess
import sys

from harness.session import Session

from .programs import Program, write_file

_SETTING = (
    '<item oor:path="/org.openoffice.{path}">'
    '<prop oor:name="{name}" oor:op="fuse"><value>{value}</value></prop></item>'
)
_PROFILE = """<?xml version="1.0" encoding="UTF-8"?>
<oor:items xmlns:oor="http://openoffice.org/2001/registry"
 xmlns:xs="http://www.w3.org/2001/XMLSchema" xmlns:xsi="http://www.w3.org/2001/XMLSchema-instance">
{settings}
</oor:items>
"""
_SETTINGS = (
    ("Office.Common/Misc", "FirstRun", "false"),
    ("Office.Common/Misc", "ShowTipOfTheDay", "false"),
    ("Setup/Product", "ooSetupLastVersion", "99.9"),
    ("Office.Recovery/RecoveryInfo", "Enabled", "false"),
)
_ANSWER_WITHIN = 3.0


class Writer(Program):
    """An empty document in the word processor."""

    def __init__(self, session: Session) -> None:
        profile = session.directory("office")
        settings = "\n".join(
            _SETTING.format(path=path, name=name, value=value) for path, name, value in _SETTINGS
        )
        write_file(
            profile / "user" / "registrymodifications.xcu", _PROFILE.format(settings=settings)
        )
        pipe = f"quorvane{session.root.name}"
        super().__init__(
            session,
            ["soffice", "--writer", "--norestore", "--nologo", "--nofirststartwizard"]
            + [f"--accept=pipe,name={pipe};urp", f"-env:UserInstallation=file://{profile}"],
            "libreoffice-writer",
            {"SAL_USE_VCLPLUGIN": "gtk3"},
        )
        self._reader = session.start(
            [sys.executable, "-B", "-m", "soak.office_reader", pipe],
            {"PYTHONPATH": ":".join(sys.path)},
            stdin=subprocess.PIPE,
            stdout=subprocess.PIPE,
        )
        self._is_asked = False

    def text(self) -> str | None:
        assert self._reader.stdin and self._reader.stdout
        if not self._is_asked:
            self._reader.stdin.write(b"\n")
            self._reader.stdin.flush()
            self._is_asked = True
        if not select.select([self._reader.stdout], [], [], _ANSWER_WITHIN)[0]:
            return None  # too busy to answer
        self._is_asked = False
        return bytes.fromhex(self._reader.stdout.readline().decode()).decode()

    def stop(self) -> None:
        self._session.stop(self._reader)
        super().stop()
