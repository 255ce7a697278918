// SPDX-License-Identifier: MIT
#pragma once

#include <platform/StatusMenu.h>

#include <QColor>
#include <QIcon>
#include <QRect>
#include <QString>

#include <functional>
#include <optional>

namespace quorvane {

/// The program's icon in the menu bar of the desktop. It exists whether or not a bar is there to
/// show it; a bar may come, go and come again.
class StatusItem {
public:
    /// Which button the user released over the icon.
    enum class Click { Left, Right };

    virtual ~StatusItem() = default;

    /// Whether there is a bar that shows items, this one unless it is hidden.
    [[nodiscard]] virtual bool hasButton() const = 0;

    /// The picture, in any size that the bar asks for, and its name for assistive technology.
    virtual void setImage(const QIcon& image, const QString& accessibilityDescription) = 0;

    /// What shows while the pointer rests on the icon; where it is empty, the name.
    virtual void setToolTip(const QString& text) = 0;

    /// The colour that the bar itself writes in, as far as it tells: a picture in this colour is as
    /// easy to see as the rest of the bar.
    [[nodiscard]] virtual std::optional<QColor> textColor() const = 0;

    /// Called when textColor() may have become another; replaces an earlier handler.
    virtual void onTextColorChanged(std::function<void()> handler) = 0;

    /// Called for each click on the icon; replaces an earlier handler. A desktop that shows the
    /// menu by itself reports no right clicks.
    virtual void onClicked(std::function<void(Click)> handler) = 0;

    [[nodiscard]] virtual bool isVisible() const = 0;
    virtual void setVisible(bool visible) = 0;

    /// Attaches a menu, which the next click opens in place of reporting the click; an empty menu
    /// detaches it. Where the desktop shows the menu by itself, neither has an effect.
    virtual void setMenu(const StatusMenu& menu) = 0;

    /// Acts as if the user had clicked the icon: opens the menu that is attached.
    virtual void performClick() = 0;

    /// The icon's place on the screen, in points; none where the desktop does not tell.
    [[nodiscard]] virtual std::optional<QRect> frame() const = 0;
};

} // namespace quorvane
