// SPDX-License-Identifier: MIT
#include "ChoiceMenu.h"

#include "ChoiceRow.h"

namespace quorvane {

namespace {

std::vector<MenuRow*> makeRows(const QStringList& titles, std::optional<int> selected) {
    std::vector<MenuRow*> rows;
    rows.reserve(static_cast<std::size_t>(titles.size()));
    for (int index = 0; index < titles.size(); ++index)
        rows.push_back(new ChoiceRow(titles[index], index == selected, nullptr));
    return rows;
}

} // namespace

ChoiceMenu::ChoiceMenu(const QStringList& titles, std::optional<int> selected, QWidget* parent)
    : RowMenu(QAccessible::List, makeRows(titles, selected), selected.value_or(0), parent) {
}

} // namespace quorvane
