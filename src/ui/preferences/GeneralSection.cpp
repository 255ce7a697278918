// SPDX-License-Identifier: MIT
#include "GeneralSection.h"

#include <model/DateTimeModel.h>
#include <platform/Autostart.h>
#include <preferences/PreferencesMetrics.h>

#include <QVBoxLayout>

namespace quorvane {

GeneralSection::GeneralSection(DateTimeModel& model, Autostart& autostart, QWidget* parent)
    : PreferencesSection(tr("General"), parent),
      m_model(model),
      m_autostart(autostart),
      m_startAtLogin(autostart.isAvailable() ? new SwitchRow(tr("Start at login"), this) : nullptr),
      m_remember(new SwitchRow(tr("Remember format and zones"), this)) {
    if (m_startAtLogin != nullptr) {
        add(m_startAtLogin);
        connect(
            m_startAtLogin, &SwitchRow::switched, this, [this](bool on) { m_autostart.setOn(on); });
    }
    m_autostart.onChanged([this] { refresh(); });
    add(m_remember);
    connect(m_remember, &SwitchRow::switched, &m_model, &DateTimeModel::setRemembersChoices);
    refresh();
}

GeneralSection::~GeneralSection() {
    m_autostart.onChanged({});
}

void GeneralSection::refresh() {
    if (m_startAtLogin != nullptr)
        m_startAtLogin->setOn(m_autostart.isOn());
    m_remember->setOn(m_model.remembersChoices());
}

void GeneralSection::add(SwitchRow* row) {
    column().addSpacing(preferencesmetrics::rowSpacing - m_below - SwitchRow::overhang);
    column().addWidget(row);
    m_below = SwitchRow::overhang;
}

} // namespace quorvane
