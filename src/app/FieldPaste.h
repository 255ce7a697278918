// SPDX-License-Identifier: MIT
#pragma once

#include <controls/PasteReader.h>
#include <platform/Pasteboard.h>

namespace quorvane {

/// What is pasted and dropped into text fields: the desktop's, within the time limits of the
/// pasteboard, which must outlive the fields.
[[nodiscard]] PasteReader fieldPaste(Pasteboard& pasteboard);

} // namespace quorvane
