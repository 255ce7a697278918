// SPDX-License-Identifier: MIT
#include "RowMenu.h"

#include "MenuRow.h"

#include <QKeyEvent>
#include <QVBoxLayout>

#include <algorithm>

namespace quorvane {

namespace {

constexpr int verticalPadding = 4;
constexpr int leastWidth = 180;

} // namespace

RowMenu::RowMenu(
    QAccessible::Role role, const std::vector<MenuRow*>& rows, int start, QWidget* parent)
    : RoleWidget(role, parent),
      m_rows(rows) {
    setMinimumWidth(leastWidth);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, verticalPadding, 0, verticalPadding);
    column->setSpacing(0);
    for (int index = 0; auto* row : m_rows) {
        row->installEventFilter(this);
        connect(row, &MenuRow::clicked, this, [this, index] { Q_EMIT chosen(index); });
        column->addWidget(row);
        ++index;
    }
    if (start >= 0 && start < std::ssize(m_rows))
        setFocusProxy(m_rows[static_cast<std::size_t>(start)]);
}

bool RowMenu::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() != QEvent::KeyPress)
        return RoleWidget::eventFilter(watched, event);
    const auto row = std::ranges::find(m_rows, watched);
    if (row == m_rows.end())
        return false;
    const auto* keyEvent = static_cast<QKeyEvent*>(event);
    const auto index = static_cast<int>(row - m_rows.begin());
    auto next = indexAfterKey(keyEvent->key(), index);
    if (!next)
        next = indexAfterText(keyEvent->text(), index);
    if (!next)
        return false;
    m_rows[static_cast<std::size_t>(*next)]->setFocus(Qt::OtherFocusReason);
    return true;
}

std::optional<int> RowMenu::indexAfterKey(int key, int index) const {
    const int last = static_cast<int>(m_rows.size()) - 1;
    switch (key) {
    case Qt::Key_Up:
        return std::max(index - 1, 0);
    case Qt::Key_Down:
        return std::min(index + 1, last);
    case Qt::Key_Home:
    case Qt::Key_PageUp:
        return 0;
    case Qt::Key_End:
    case Qt::Key_PageDown:
        return last;
    default:
        return std::nullopt;
    }
}

std::optional<int> RowMenu::indexAfterText(const QString& text, int index) const {
    // Space chooses; control characters are no letters.
    if (text.isEmpty() || !text.front().isPrint() || text.front().isSpace())
        return std::nullopt;
    const int count = static_cast<int>(m_rows.size());
    for (int step = 1; step <= count; ++step) {
        const int candidate = (index + step) % count;
        const auto& title = m_rows[static_cast<std::size_t>(candidate)]->text();
        if (title.startsWith(text, Qt::CaseInsensitive))
            return candidate;
    }
    return std::nullopt;
}

} // namespace quorvane
