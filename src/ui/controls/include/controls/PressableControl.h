// SPDX-License-Identifier: MIT
#pragma once

#include <controls/FocusShaped.h>
#include <controls/Theme.h>

#include <QAbstractButton>
#include <QAccessible>

#include <optional>

namespace quorvane {

/// What every control that one presses has in common: Space and Return press it, it shows hover,
/// press and the keyboard's focus, and follows palette, font and direction while it is shown.
class PressableControl : public QAbstractButton, public FocusShaped {
    Q_OBJECT

public:
    enum class VisualState { Normal, Hover, Pressed };

    explicit PressableControl(QWidget* parent = nullptr);

    /// The whole control, with cornerRadius().
    [[nodiscard]] FocusOutline focusOutline() const override;

    [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }

    /// For assistive technology; see PressableAccessible.h.
    [[nodiscard]] virtual QAccessible::Role accessibleRole() const { return QAccessible::Button; }

    /// Whether what the control opens is open; none for one that opens nothing.
    [[nodiscard]] virtual std::optional<bool> isExpanded() const { return std::nullopt; }

    /// The surface that the control has opened, which belongs to it in the eyes of assistive
    /// technology: Qt lists no popup among the program's windows. Null while there is none.
    [[nodiscard]] virtual QWidget* openedSurface() const { return nullptr; }

    /// The value, for one that has a value apart from its name.
    [[nodiscard]] virtual QString accessibleValue() const { return {}; }

protected:
    [[nodiscard]] virtual double cornerRadius() const = 0;

    /// Paints the control at the opacity that goes with its state.
    virtual void paintControl(QPainter& painter, const Theme& theme) = 0;

    /// While it is disabled by itself, 0 to 1.
    [[nodiscard]] virtual double disabledOpacity() const;

    [[nodiscard]] VisualState visualState() const;

    void paintEvent(QPaintEvent* event) final;
    void keyPressEvent(QKeyEvent* event) override;
    void changeEvent(QEvent* event) override;
};

/// What is laid over a control's fill in that visual state: nothing in the normal one.
[[nodiscard]] QColor overlayFor(PressableControl::VisualState state, const Theme& theme);

/// The accent as a control's fill in that visual state: a darker one instead of an overlay.
[[nodiscard]] QColor accentFill(PressableControl::VisualState state, const Theme& theme);

} // namespace quorvane
