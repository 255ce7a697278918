// SPDX-License-Identifier: MIT
#pragma once

#include <controls/RoleWidget.h>

#include <optional>
#include <vector>

namespace quorvane {

class MenuRow;

/// Rows to press one of, for a popover: arrows, Home and End move, Space and Return press, a letter
/// goes to the next title that begins with it.
class RowMenu : public RoleWidget {
    Q_OBJECT

public:
    /// The keyboard starts at the row `start`, where there is one.
    RowMenu(QAccessible::Role role, const std::vector<MenuRow*>& rows, int start, QWidget* parent);

    bool eventFilter(QObject* watched, QEvent* event) override;

Q_SIGNALS:
    void chosen(int index);

private:
    [[nodiscard]] std::optional<int> indexAfterKey(int key, int index) const;
    [[nodiscard]] std::optional<int> indexAfterText(const QString& text, int index) const;

    std::vector<MenuRow*> m_rows;
};

} // namespace quorvane
