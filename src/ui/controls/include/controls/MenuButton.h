// SPDX-License-Identifier: MIT
#pragma once

#include <controls/AnchoredPopover.h>
#include <controls/Command.h>
#include <controls/IconButton.h>

#include <QPointer>

#include <vector>

namespace quorvane {

/// A symbol that opens a menu of commands below it, right edges flush. A command runs after the
/// menu has closed.
class MenuButton final : public IconButton {
    Q_OBJECT

public:
    MenuButton(
        Symbol symbol,
        const QString& name,
        std::vector<Command> commands,
        PopoverEffects effects,
        QWidget* parent);

    [[nodiscard]] QAccessible::Role accessibleRole() const override {
        return QAccessible::ButtonMenu;
    }

    [[nodiscard]] std::optional<bool> isExpanded() const override { return !m_popover.isNull(); }

    [[nodiscard]] QWidget* openedSurface() const override { return m_popover; }

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    void toggle();
    void open();
    void run(int index);
    void announceExpansion();

    std::vector<Command> m_commands;
    PopoverEffects m_effects;
    QPointer<AnchoredPopover> m_popover;
};

} // namespace quorvane
