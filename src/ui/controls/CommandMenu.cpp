// SPDX-License-Identifier: MIT
#include "CommandMenu.h"

#include "CommandRow.h"

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

CommandMenu::CommandMenu(const std::vector<Command>& commands, QWidget* parent)
    : RowMenu(QAccessible::PopupMenu, makeRows(commands), 0, parent) {
}

} // namespace quorvane
