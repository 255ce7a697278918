// SPDX-License-Identifier: MIT
#pragma once

#include "X11LentData.h"

#include <platform/PasteboardContents.h>

#include <QClipboard>

namespace quorvane::qtx11 {

/// What Qt's clipboard offers to other programs, put there by a text field of ours or lent by
/// ourselves. Asking for it by the X protocol would be asking ourselves.
[[nodiscard]] PasteboardItem clipboardItem(QClipboard::Mode mode);

/// What we have lent to Qt's clipboard; null if another's contents are there.
[[nodiscard]] const X11LentData* lentData();

} // namespace quorvane::qtx11
