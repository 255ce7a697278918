// SPDX-License-Identifier: MIT
#pragma once

#include <platform/Pasteboard.h>
#include <platform/PasteboardContents.h>
#include <platform/PasteboardText.h>

#include <QString>

namespace quorvane {

/// A text under all the names by which programs ask for plain text.
[[nodiscard]] PasteboardItem plainTextItem(const QString& text);

/// The same, with a mark that keeps it out of clipboard histories if it is only passing.
[[nodiscard]] PasteboardItem plainTextItem(const QString& text, TextStay stay);

} // namespace quorvane
