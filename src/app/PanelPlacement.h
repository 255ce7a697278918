// SPDX-License-Identifier: MIT
#pragma once

#include <QRect>

#include <optional>
#include <vector>

class QWidget;

namespace quorvane {

/// Size and place of panel and popover. All rectangles in points of the virtual desktop.
namespace panelplacement {

inline constexpr int minimumContentHeight = 300;

/// The height that the content's layout asks for at the panel's width.
[[nodiscard]] int fittingHeight(QWidget& content);

/// The height for content that needs `fittingHeight`.
[[nodiscard]] int contentHeight(int fittingHeight);

/// A frame of that size in the middle of the screen's available area; at its top left corner where
/// the area is smaller.
[[nodiscard]] QRect centred(QSize size, const QRect& available);

/// What is stored for a panel that the user put there; the height is none where the user left it
/// to the content.
[[nodiscard]] QRect stored(QPoint place, std::optional<int> usersHeight);

/// The height of a stored frame, if the user chose it.
[[nodiscard]] std::optional<int> storedHeight(const QRect& stored);

/// Whether any of the areas shows a part of the panel.
[[nodiscard]] bool touchesAny(const QRect& frame, const std::vector<QRect>& availableAreas);

/// The frame at another height, at most that of the area: its top left corner stays, unless it
/// would then leave the area that it was inside.
[[nodiscard]] QRect resized(const QRect& frame, int height, const QRect& available);

/// The frame at that height, or as near to it as it can come without moving: one inside the area
/// stays inside.
[[nodiscard]] QRect resizedInPlace(const QRect& frame, int height, const QRect& available);

} // namespace panelplacement

} // namespace quorvane
