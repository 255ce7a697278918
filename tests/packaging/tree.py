# SPDX-License-Identifier: MIT
"""Where the tree and its build lie, and how its programs are run."""

import os
import subprocess
from collections.abc import Sequence
from pathlib import Path

TREE = Path(__file__).resolve().parents[2]
BUILD = Path(os.environ.get("QUORVANE_BUILD", TREE / "build"))
CMAKE = os.environ.get("QUORVANE_CMAKE", "cmake")
ID = "org.quorvane.Quorvane"
# Beside English.
LANGUAGES = sorted(
    file.stem.removeprefix("quorvane_")
    for file in (TREE / "resources" / "translations").glob("quorvane_*.ts")
)


def run(
    command: Sequence[str | Path], **environment: str
) -> "subprocess.CompletedProcess[str]":
    """Runs a command to its end, its output and its errors together in `stdout`."""
    return subprocess.run(
        command,
        env=os.environ | {"LC_ALL": "C.UTF-8"} | environment,
        stdout=subprocess.PIPE,
        stderr=subprocess.STDOUT,
        text=True,
        timeout=120,
        check=False,
    )


def install(prefix: Path | str, **environment: str) -> str:
    """Installs the build below a prefix and returns what was said about it."""
    done = run([CMAKE, "--install", BUILD, "--prefix", prefix], **environment)
    if done.returncode != 0:
        raise AssertionError(done.stdout)
    return done.stdout


def installed_files(folder: Path) -> list[str]:
    """All that lies in a folder, but for folders themselves."""
    return sorted(
        str(path.relative_to(folder)) for path in folder.rglob("*") if not path.is_dir()
    )
