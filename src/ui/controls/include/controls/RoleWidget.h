// SPDX-License-Identifier: MIT
#pragma once

#include <QAccessible>
#include <QWidget>

namespace quorvane {

/// A widget that assistive technology knows by a role of its own, such as a group's: a plain one it
/// takes for mere layout.
class RoleWidget : public QWidget {
    Q_OBJECT

public:
    explicit RoleWidget(QAccessible::Role role, QWidget* parent = nullptr);

    [[nodiscard]] QAccessible::Role accessibleRole() const { return m_role; }

private:
    QAccessible::Role m_role;
};

} // namespace quorvane
