// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace quorvane {

/// Tells whoever looks after this program (a terminal, the session's journal) of a real failure:
/// what the user asked for will not happen, or not last. One line on standard error, whatever the
/// logging rules say; breaks in `what` become spaces. Everything else belongs to a logging
/// category, where it is silent until somebody asks.
void reportFailure(const QString& what);

} // namespace quorvane
