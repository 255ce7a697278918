// SPDX-License-Identifier: MIT
#include "RowMenu.h"
#include "SampleRow.h"

#include <controls/TextStyle.h>

#include <QLabel>
#include <QVBoxLayout>

#include <algorithm>
#include <cstdlib>

namespace quorvane {

namespace {

constexpr int sideMargin = 12;
constexpr int headHeight = 24;

} // namespace

SampleList::SampleList(
    const QString& name,
    Form form,
    const std::vector<SampleItem>& items,
    const QFont& codeFont,
    QWidget* parent)
    : QWidget(parent) {
    std::vector<MenuRow*> rows;
    rows.reserve(items.size());
    for (const auto& item : items)
        rows.push_back(new SampleRow(item, form, codeFont, nullptr));
    m_rows.assign(rows.begin(), rows.end());
    auto* menu = new RowMenu(QAccessible::List, rows, 0, this);
    menu->setAccessibleName(name);
    setFocusProxy(menu);
    connect(menu, &RowMenu::chosen, this, &SampleList::chosen);
    auto* head = new QLabel(name, this);
    head->setFont(textFont(font(), TextStyle::Callout, QFont::Medium));
    head->setForegroundRole(QPalette::PlaceholderText);
    head->setContentsMargins(sideMargin, 0, sideMargin, 0);
    head->setMinimumHeight(headHeight);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addWidget(head);
    column->addWidget(menu);
    column->addStretch();
}

void SampleList::focusRowAt(QPoint place) {
    const auto distance = [&](const QWidget* row) {
        return std::abs(row->mapTo(window(), row->rect().center()).y() - place.y());
    };
    const auto nearest = std::ranges::min_element(m_rows, {}, distance);
    if (nearest != m_rows.end())
        (*nearest)->setFocus(Qt::TabFocusReason);
}

} // namespace quorvane
