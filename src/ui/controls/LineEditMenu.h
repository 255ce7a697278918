// SPDX-License-Identifier: MIT
#pragma once

#include <controls/LineEdit.h>

#include <QMenu>

namespace quorvane {

/// The menu that opens over the field, as QLineEdit's own but for Paste, which can always be
/// chosen: whether there is anything to paste, only the clipboard's owner can say.
[[nodiscard]] QMenu* makeLineEditMenu(LineEdit& field);

} // namespace quorvane
