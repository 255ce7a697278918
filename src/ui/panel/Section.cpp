// SPDX-License-Identifier: MIT
#include "Section.h"

#include "SectionLabel.h"

#include <controls/DimmingOverlay.h>
#include <panel/PanelMetrics.h>

#include <QVBoxLayout>

namespace quorvane {

namespace {

constexpr double unavailableOpacity = 0.4;

} // namespace

Section::Section(const QString& name, Symbol icon, QWidget* parent)
    : RoleWidget(QAccessible::Grouping, parent),
      m_label(new SectionLabel(name, icon, this)),
      m_content(new QWidget(this)),
      m_body(new QVBoxLayout(m_content)),
      m_overlay(new DimmingOverlay(this)) {
    setAccessibleName(name);
    m_body->setContentsMargins(panelmetrics::overhang, 0, panelmetrics::overhang, 0);
    m_body->setSpacing(panelmetrics::labelSpacing);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(panelmetrics::labelSpacing);
    column->addWidget(m_label);
    column->addWidget(m_content, 1);
}

void Section::setAvailable(bool available) {
    m_content->setEnabled(available);
    m_overlay->setOpacity(available ? 1 : unavailableOpacity);
}

void Section::frameWhileUnavailable() {
    m_overlay->setFramed(true);
}

} // namespace quorvane
