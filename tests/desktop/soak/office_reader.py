# SPDX-License-Identifier: MIT
"""Reads the document that is open in LibreOffice, once for each line of its input.

A process of its own: the library waits for the office without end.
"""

import sys
import time

import uno
from com.sun.star.connection import NoConnectException


def main() -> None:
    """Prints the text in hexadecimal, a line each time."""
    local = uno.getComponentContext()
    resolver = local.ServiceManager.createInstanceWithContext(
        "com.sun.star.bridge.UnoUrlResolver", local
    )
    document = None
    for _ in sys.stdin:
        while document is None:
            document = _find_document(resolver)
        print(document.getText().getString().encode().hex(), flush=True)


def _find_document(resolver):
    address = f"uno:pipe,name={sys.argv[1]};urp;StarOffice.ComponentContext"
    try:
        context = resolver.resolve(address)
    except NoConnectException:
        time.sleep(0.1)  # it announces by nothing that it listens
        return None
    desktop = context.ServiceManager.createInstanceWithContext(
        "com.sun.star.frame.Desktop", context
    )
    return desktop.getCurrentComponent()


if __name__ == "__main__":
    main()
