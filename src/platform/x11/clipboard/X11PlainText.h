// SPDX-License-Identifier: MIT
#pragma once

#include <platform/Pasteboard.h>
#include <platform/PasteboardContents.h>

#include <QString>
#include <QStringList>

#include <optional>

namespace quorvane {

/// A text under all the names by which programs ask for plain text.
[[nodiscard]] PasteboardItem plainTextItem(const QString& text);

/// The same, with a mark that keeps it out of clipboard histories if it is only passing.
[[nodiscard]] PasteboardItem plainTextItem(const QString& text, TextStay stay);

/// The plain text of an item, under the best of its names; none where it has no text.
[[nodiscard]] std::optional<QString> textOf(const PasteboardItem& item);

/// The best names of plain text, as an owner is asked for them one after the other.
[[nodiscard]] QStringList plainTextTargets();

/// Whether this is a name of plain text.
[[nodiscard]] bool isPlainText(const QString& type);

/// Whether clipboard histories are asked to look away, as they are by password managers.
[[nodiscard]] bool isSecret(const PasteboardItem& item);

} // namespace quorvane
