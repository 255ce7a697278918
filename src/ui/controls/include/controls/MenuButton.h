// SPDX-License-Identifier: MIT
#pragma once

#include <controls/Command.h>
#include <controls/IconButton.h>
#include <controls/PopoverOpener.h>

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

    [[nodiscard]] std::optional<bool> isExpanded() const override { return m_menu.isOpen(); }

    [[nodiscard]] QWidget* openedSurface() const override { return m_menu.popover(); }

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    [[nodiscard]] QWidget* makeMenu();
    void run(int index);

    std::vector<Command> m_commands;
    PopoverOpener m_menu;
};

} // namespace quorvane
