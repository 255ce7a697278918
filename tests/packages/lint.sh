#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# lint.sh CHANGES: reads packages that were built. The developers have no address, and none is made up.
set -euo pipefail
exec lintian --allow-root --fail-on error,warning --info \
    --suppress-tags malformed-contact,bogus-mail-host-in-debian-changelog "$@"
