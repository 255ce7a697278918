// SPDX-License-Identifier: MIT
#pragma once

#include <settings/Environment.h>

#include <QStringList>

namespace quorvane {

/// The languages in which the user reads, the one liked best first, each before its plainer form:
/// "de_AT", "de", "fr". By LANGUAGE, a list, then the first of LC_ALL, LC_MESSAGES and LANG that is
/// not empty; that one says as well whether there is a wish at all: none with C, POSIX and no
/// variable.
[[nodiscard]] QStringList languagesRead(const Environment& environment);

} // namespace quorvane
