// SPDX-License-Identifier: MIT
#pragma once

#include <platform/Pasteboard.h>

#include <QString>

#include <backends/DesktopSession.h>
#include <memory>

namespace quorvane {

/// The clipboard as Qt has it, for where nobody has a better one.
[[nodiscard]] std::unique_ptr<Pasteboard> makeQtClipboard(const DesktopSession& session);

/// What it can do; a sentence for the user.
[[nodiscard]] QString explanationOfQtClipboard();

} // namespace quorvane
