#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# lint.sh CHANGES: reads packages that were built. The developers have no address and no homepage,
# and none is made up: metadata without one is a fault to newer versions, by a name that older ones
# refuse. What else metadata may lack is seen by the tests of ./dev test.
set -euo pipefail
unwanted=malformed-contact,bogus-mail-host-in-debian-changelog
metadata=appstream-metadata-validation-failed
if lintian-explain-tags "$metadata" >/dev/null 2>&1; then
    unwanted+=,$metadata
fi
exec lintian --allow-root --fail-on error,warning --info --suppress-tags "$unwanted" "$@"
