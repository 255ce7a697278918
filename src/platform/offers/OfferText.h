// SPDX-License-Identifier: MIT
#pragma once

#include <platform/Pasteboard.h>
#include <platform/PasteboardText.h>

#include <QString>

namespace quorvane {

/// A text under the names by which programs of Wayland ask for plain text; those of X11 find it by
/// the second. It is always UTF-8.
[[nodiscard]] inline PasteboardItem offeredText(const QString& text) {
    const auto utf8 = text.toUtf8();
    return {
        {QStringLiteral("text/plain;charset=utf-8"), utf8, {}},
        {QStringLiteral("UTF8_STRING"), utf8, {}},
        {QStringLiteral("text/plain"), utf8, {}},
    };
}

/// The same, with a mark that keeps it out of clipboard histories if it is only passing.
[[nodiscard]] inline PasteboardItem offeredText(const QString& text, TextStay stay) {
    auto item = offeredText(text);
    if (stay == TextStay::Passing)
        item.push_back(historyHint());
    return item;
}

} // namespace quorvane
