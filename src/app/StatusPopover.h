// SPDX-License-Identifier: MIT
#pragma once

#include "PopoverAnchor.h"

#include <controls/PopoverSurface.h>

#include <QWidget>

namespace quorvane {

/// The window of the popover at the tray icon. It closes at a press outside, and receives the keys
/// by a grab, without becoming the desktop's active window.
class StatusPopover final : public QWidget {
    Q_OBJECT

public:
    enum class Background { Composited, Plain };

    /// Takes ownership of the content, whose layout decides the height.
    StatusPopover(QWidget* content, Background background);

    [[nodiscard]] bool isComposited() const { return m_surface.isComposited(); }

    /// What the content needs, at least the panel's minimum, in points.
    [[nodiscard]] int contentHeight() const;

    /// Shows it below the anchor, or above if there is no room below, inside the available area.
    void showAt(const PopoverAnchor::Place& place);

Q_SIGNALS:
    /// The window has been painted in its current state.
    void painted();

    /// A press outside has closed it.
    void dismissed();

protected:
    bool event(QEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void fit();

    QWidget* m_content;
    PopoverSurface m_surface;
    PopoverAnchor::Place m_place;
};

} // namespace quorvane
