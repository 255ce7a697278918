// SPDX-License-Identifier: MIT
#include <ui/PanelMetrics.h>
#include <ui/Section.h>
#include <ui/SectionLabel.h>

#include <QVBoxLayout>

namespace quorvane {

Section::Section(const QString& name, Symbol icon, QWidget* parent)
    : QWidget(parent),
      m_label(new SectionLabel(name, icon, this)),
      m_body(new QVBoxLayout) {
    m_body->setContentsMargins(panelmetrics::reach, 0, panelmetrics::reach, 0);
    m_body->setSpacing(panelmetrics::labelSpacing);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(panelmetrics::labelSpacing);
    column->addWidget(m_label);
    column->addLayout(m_body);
}

} // namespace quorvane
