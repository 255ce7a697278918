// SPDX-License-Identifier: MIT
#pragma once

#include "X11LentData.h"

#include <platform/PasteboardContents.h>

#include <QClipboard>

#include <optional>

namespace quorvane::qtx11 {

/// What Qt's clipboard offers to other programs, put there by a text field of ours or lent by
/// ourselves. A request to the X server for it would come back to our own process. None where
/// another program has taken the selection meanwhile: Qt would wait for that.
[[nodiscard]] std::optional<PasteboardItem> clipboardItem(QClipboard::Mode mode);

/// What we have lent to Qt's clipboard; null if another's contents are there.
[[nodiscard]] const X11LentData* lentData();

} // namespace quorvane::qtx11
