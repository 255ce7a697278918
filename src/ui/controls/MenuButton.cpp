// SPDX-License-Identifier: MIT
#include "CommandMenu.h"

#include <controls/MenuButton.h>

#include <QKeyEvent>

#include <utility>

namespace quorvane {

MenuButton::MenuButton(
    Symbol symbol,
    const QString& name,
    std::vector<Command> commands,
    PopoverEffects effects,
    QWidget* parent)
    : IconButton(Kind::Header, symbol, name, parent),
      m_commands(std::move(commands)),
      m_effects(std::move(effects)) {
    connect(this, &MenuButton::clicked, this, &MenuButton::toggle);
}

void MenuButton::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Down || event->key() == Qt::Key_F4)
        open();
    else
        IconButton::keyPressEvent(event);
}

void MenuButton::toggle() {
    if (m_popover)
        m_popover->close();
    else
        open();
}

void MenuButton::open() {
    auto* menu = new CommandMenu(m_commands);
    m_popover = new AnchoredPopover(this, menu, m_effects);
    m_popover->setAccessibleName(accessibleName());
    m_popover->setLayoutDirection(layoutDirection());
    m_popover->setAlignment(PopoverAlignment::RightEdges);
    connect(menu, &CommandMenu::chosen, this, &MenuButton::run);
    connect(m_popover, &AnchoredPopover::closed, this, [this] {
        m_popover = nullptr;
        announceExpansion();
    });
    m_popover->open();
    announceExpansion();
}

void MenuButton::run(int index) {
    // The command may take down the window that the menu stands in, and this button with it.
    const auto command = m_commands[static_cast<std::size_t>(index)].run;
    m_popover->close();
    command();
}

void MenuButton::announceExpansion() {
    update();
    QAccessible::State changed;
    changed.expanded = true;
    QAccessibleStateChangeEvent event(this, changed);
    QAccessible::updateAccessibility(&event);
}

} // namespace quorvane
