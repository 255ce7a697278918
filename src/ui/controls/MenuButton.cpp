// SPDX-License-Identifier: MIT
#include "CommandRow.h"
#include "RowMenu.h"

#include <controls/MenuButton.h>

#include <QKeyEvent>

#include <utility>

namespace quorvane {

namespace {

std::vector<MenuRow*> makeRows(const std::vector<Command>& commands) {
    std::vector<MenuRow*> rows;
    rows.reserve(commands.size());
    for (const auto& command : commands)
        rows.push_back(new CommandRow(command.symbol, command.title, command.keys, nullptr));
    return rows;
}

} // namespace

MenuButton::MenuButton(
    Symbol symbol,
    const QString& name,
    std::vector<Command> commands,
    PopoverEffects effects,
    QWidget* parent)
    : IconButton(Kind::Header, symbol, name, parent),
      m_commands(std::move(commands)),
      m_menu(*this, std::move(effects), [this] { return makeMenu(); }) {
    m_menu.setAccessibleName(accessibleName());
    m_menu.setAlignment(PopoverAlignment::RightEdges);
    connect(this, &MenuButton::clicked, &m_menu, &PopoverOpener::toggle);
}

void MenuButton::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Down || event->key() == Qt::Key_F4)
        m_menu.open();
    else
        IconButton::keyPressEvent(event);
}

QWidget* MenuButton::makeMenu() {
    auto* menu = new RowMenu(QAccessible::PopupMenu, makeRows(m_commands), 0, nullptr);
    connect(menu, &RowMenu::chosen, this, &MenuButton::run);
    return menu;
}

void MenuButton::run(int index) {
    // The command may take down the window that the menu stands in, and this button with it.
    const auto command = m_commands[static_cast<std::size_t>(index)].run;
    m_menu.close();
    command();
}

} // namespace quorvane
