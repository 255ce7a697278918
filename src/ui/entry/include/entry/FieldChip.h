// SPDX-License-Identifier: MIT
#pragma once

#include <controls/ContentRow.h>
#include <controls/PopoverOpener.h>
#include <controls/PressableControl.h>
#include <controls/Symbol.h>

namespace quorvane {

/// A chip that shows a value and opens a popover to edit it; the next press closes the popover. Up
/// and Down step the value while the chip has the keyboard, the wheel while the pointer is on it.
/// To assistive technology it is a button that has its text for a name and can be expanded.
class FieldChip : public PressableControl {
    Q_OBJECT

public:
    FieldChip(Symbol icon, PopoverEffects effects, QWidget* parent);

    [[nodiscard]] QSize sizeHint() const override;

    [[nodiscard]] std::optional<bool> isExpanded() const override { return m_popover.isOpen(); }

    [[nodiscard]] QWidget* openedSurface() const override { return m_popover.popover(); }

    /// Shows another value.
    void showText(const QString& text);

protected:
    /// What the popover shows: made anew at each opening and gone when it closes.
    [[nodiscard]] virtual QWidget* makeContent() = 0;

    /// Moves the value on by so many steps; back by a negative number.
    virtual void step(int amount) = 0;

    void closePopover() { m_popover.close(); }

    [[nodiscard]] double cornerRadius() const override;
    void paintControl(QPainter& painter, const Theme& theme) override;
    void keyPressEvent(QKeyEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    [[nodiscard]] ContentRow contentRow(const Theme& theme) const;

    Symbol m_icon;
    PopoverOpener m_popover;
    int m_turned = 0; ///< of the wheel since the last step, in eighths of a degree
};

} // namespace quorvane
