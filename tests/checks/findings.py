# SPDX-License-Identifier: MIT
"""Reads what a compiler's plug-in says and prints each warning once. Ends with 1 if there is any.

A warning is suppressed where it stands, by a comment `clazy:exclude=NAME`, with the reason beside.
"""

import re
import sys

_WARNING = re.compile(r"^\S+:\d+:\d+: (?:warning|error): ")


def main() -> int:
    seen = {}
    for line in sys.stdin:
        if _WARNING.match(line):
            seen[line] = None
    sys.stdout.writelines(seen)
    return 1 if seen else 0


if __name__ == "__main__":
    sys.exit(main())
