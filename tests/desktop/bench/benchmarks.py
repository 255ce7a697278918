# SPDX-License-Identifier: MIT
"""The benchmarks inside the program, as figures beside the others."""

import json
import subprocess
from pathlib import Path

from .figures import PRODUCT, Figures
from .programs import BUILD

_REPETITIONS = 3
_SECONDS = 0.1  # for each, without a unit: versions before 1.8 take none
_COUNTERS = ("median_ms", "worst_ms", "p99_us")


def measure_benchmarks(folder: Path, figures: Figures) -> None:
    """Runs them all, which prints them, and notes them."""
    kept = folder / "benchmarks.json"
    command = [
        str(BUILD / "quorvane-bench"),
        "--benchmark_filter=-growth",
        f"--benchmark_min_time={_SECONDS}",
        f"--benchmark_repetitions={_REPETITIONS}",
        "--benchmark_display_aggregates_only=true",
        f"--benchmark_out={kept}",
        "--benchmark_out_format=json",
    ]
    subprocess.run(command, check=True)
    for entry in json.loads(kept.read_text())["benchmarks"]:
        if entry["run_type"] == "iteration":
            figures.add(entry["run_name"], PRODUCT, entry["time_unit"], entry["real_time"])
            for counter in _COUNTERS:
                if counter in entry:
                    name, unit = counter.rsplit("_", 1)
                    figures.add(f"{entry['run_name']}, {name}", PRODUCT, unit, entry[counter])
