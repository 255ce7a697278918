// SPDX-License-Identifier: MIT
#include "GeneralSection.h"

#include <model/DateTimeModel.h>
#include <preferences/PreferencesMetrics.h>

#include <QVBoxLayout>

namespace quorvane {

GeneralSection::GeneralSection(DateTimeModel& model, QWidget* parent)
    : PreferencesSection(tr("General"), parent),
      m_model(model),
      m_remember(new SwitchRow(tr("Remember format and zones"), this)) {
    add(m_remember);
    connect(m_remember, &SwitchRow::switched, &m_model, &DateTimeModel::setRemembersChoices);
    refresh();
}

void GeneralSection::refresh() {
    m_remember->setOn(m_model.remembersChoices());
}

void GeneralSection::add(SwitchRow* row) {
    column().addSpacing(preferencesmetrics::rowSpacing - m_below - SwitchRow::overhang);
    column().addWidget(row);
    m_below = SwitchRow::overhang;
}

} // namespace quorvane
