// SPDX-License-Identifier: MIT
#pragma once

#include <platform/PasteboardContents.h>

#include <QString>
#include <QStringList>

#include <optional>

namespace quorvane {

/// The plain text of an item, under the best of its names; none where it has no text.
[[nodiscard]] std::optional<QString> textOf(const PasteboardItem& item);

/// The best names of plain text, as an owner is asked for them one after the other.
[[nodiscard]] QStringList plainTextTypes();

/// Whether this is a name of plain text.
[[nodiscard]] bool isPlainText(const QString& type);

/// What asks clipboard histories to look away, as password managers do.
[[nodiscard]] PasteboardEntry historyHint();

/// Whether clipboard histories are asked to look away.
[[nodiscard]] bool isSecret(const PasteboardItem& item);

} // namespace quorvane
