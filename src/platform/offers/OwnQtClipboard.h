// SPDX-License-Identifier: MIT
#pragma once

#include <platform/PasteboardContents.h>

#include <QClipboard>

#include <optional>

namespace quorvane {

/// What a text field of ours has copied through Qt, where Qt runs on Wayland: read through a pipe
/// it would have this thread wait for itself. None where another program's contents stand there.
[[nodiscard]] std::optional<PasteboardItem> ownQtItem(QClipboard::Mode mode);

} // namespace quorvane
