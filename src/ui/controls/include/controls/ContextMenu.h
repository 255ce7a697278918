// SPDX-License-Identifier: MIT
#pragma once

class QMenu;
class QPoint;
class QWidget;

namespace quorvane {

/// Opens a menu of `owner` at `position`, in global coordinates. It is deleted when it closes, and
/// closes when its owner is hidden, alone or with its window: Qt would leave it open on the screen,
/// with the keyboard.
void openContextMenu(QMenu& menu, QWidget& owner, const QPoint& position);

} // namespace quorvane
