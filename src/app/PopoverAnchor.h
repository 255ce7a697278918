// SPDX-License-Identifier: MIT
#pragma once

#include <platform/Workspace.h>

#include <QPoint>
#include <QRect>

#include <optional>
#include <vector>

class QScreen;

namespace quorvane {

/// Where the popover is placed: at the tray icon, as far as the desktop tells where that is.
class PopoverAnchor {
public:
    /// The rectangle that the popover is placed at, and the area that it stays inside.
    struct Place {
        QRect anchor;
        QRect available;
    };

    /// `workspace` must outlive the anchor.
    explicit PopoverAnchor(const Workspace& workspace) : m_workspace(workspace) {}

    /// The user has clicked the icon with the pointer there. Until clickHandled() the popover is
    /// placed at that point, unless the icon's frame is known.
    void noteClick(QPoint pointer);
    void clickHandled();

    /// At the icon where its frame is known, else where it was last clicked on the main screen,
    /// else in the corner of that screen where bars usually have their icons.
    [[nodiscard]] Place place(const std::optional<QRect>& iconFrame) const;

    /// The corner of the screen at its bar, at the end of the reading direction; an upper corner if
    /// there is no bar.
    [[nodiscard]] static QPoint
    corner(const QRect& screen, const QRect& available, Qt::LayoutDirection direction);

private:
    [[nodiscard]] std::optional<QPoint> lastClickOn(const QScreen& screen) const;

    const Workspace& m_workspace;
    std::vector<QPoint> m_clicks; ///< the latest comes last
    bool m_isClicked = false;
};

} // namespace quorvane
