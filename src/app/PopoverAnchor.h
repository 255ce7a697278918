// SPDX-License-Identifier: MIT
#pragma once

#include <platform/Workspace.h>

#include <QPoint>
#include <QRect>

#include <optional>
#include <vector>

class QScreen;

namespace quorvane {

/// Where the popover hangs: from the icon, as well as the desktop lets its place be known.
class PopoverAnchor {
public:
    /// What the popover stands at, and the area that it stays inside.
    struct Place {
        QRect anchor;
        QRect available;
    };

    /// `workspace` must outlive the anchor.
    explicit PopoverAnchor(const Workspace& workspace) : m_workspace(workspace) {}

    /// The user clicks the icon with the pointer there; until clickHandled() that is where it is.
    void noteClick(QPoint pointer);
    void clickHandled();

    /// The icon itself where its frame is known, else where it was last clicked on the screen where
    /// the user is, else the corner of that screen where bars have their icons.
    [[nodiscard]] Place place(const std::optional<QRect>& iconFrame) const;

    /// The corner of the screen that lies beside its bar, at the end of the reading direction; the
    /// upper one without a bar.
    [[nodiscard]] static QPoint
    corner(const QRect& screen, const QRect& available, Qt::LayoutDirection direction);

private:
    [[nodiscard]] std::optional<QPoint> lastClickOn(const QScreen& screen) const;

    const Workspace& m_workspace;
    std::vector<QPoint> m_clicks; ///< the latest last
    bool m_isClicked = false;
};

} // namespace quorvane
