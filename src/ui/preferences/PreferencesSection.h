// SPDX-License-Identifier: MIT
#pragma once

#include <controls/RoleWidget.h>

class QVBoxLayout;

namespace quorvane {

/// Settings that belong together, under a heading that names them.
class PreferencesSection : public RoleWidget {
    Q_OBJECT

public:
    PreferencesSection(const QString& heading, QWidget* parent);

protected:
    /// What stands below the heading; spacing is left to whoever adds to it.
    [[nodiscard]] QVBoxLayout& column() { return *m_column; }

private:
    QVBoxLayout* m_column;
};

} // namespace quorvane
