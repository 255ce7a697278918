// SPDX-License-Identifier: MIT
#pragma once

#include "PopoverAnchor.h"

#include <QWidget>

namespace quorvane {

/// The interface as a popover at the icon in the menu bar. It closes at a press outside, and takes
/// the keys without becoming the desktop's active window.
class StatusPopover final : public QWidget {
    Q_OBJECT

public:
    enum class Background { Composited, Plain };

    /// Takes over the content, whose layout decides the height.
    StatusPopover(QWidget* content, Background background);

    /// At least the least height of a panel, in points.
    [[nodiscard]] int contentHeight() const;

    /// Shows it below the anchor, or above where there is no room, inside the available area.
    void showAt(const PopoverAnchor::Place& place);

Q_SIGNALS:
    /// It is on the screen as it is now.
    void painted();

    /// A press outside has closed it.
    void dismissed();

protected:
    bool event(QEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    [[nodiscard]] QRect surface() const;
    void fit();

    QWidget* m_content;
    Background m_background;
    PopoverAnchor::Place m_place;
};

} // namespace quorvane
