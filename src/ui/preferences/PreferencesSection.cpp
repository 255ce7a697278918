// SPDX-License-Identifier: MIT
#include "PreferencesSection.h"

#include <controls/WrappedText.h>

#include <QVBoxLayout>

namespace quorvane {

PreferencesSection::PreferencesSection(const QString& heading, QWidget* parent)
    : RoleWidget(QAccessible::Grouping, parent),
      m_column(new QVBoxLayout(this)) {
    setAccessibleName(heading);
    m_column->setContentsMargins(0, 0, 0, 0);
    m_column->setSpacing(0);
    m_column->addWidget(
        new WrappedText(heading, TextStyle::Headline, WrappedText::Color::Primary, this));
}

} // namespace quorvane
