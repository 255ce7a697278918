// SPDX-License-Identifier: MIT
#pragma once

#include <platform/Pasteboard.h>

#include <QString>

namespace quorvane {

/// Puts the text on the pasteboard for good, in place of whatever it held; says whether it did.
[[nodiscard]] PutOutcome copyText(Pasteboard& pasteboard, const QString& text);

} // namespace quorvane
