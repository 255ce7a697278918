// SPDX-License-Identifier: MIT
#include "PanelFixture.h"

#include <panel/PopoverView.h>

#include <utility>
#include <vector>

namespace quorvane {

PanelFixture::PanelFixture(const QStringList& zones) {
    std::vector<TimeZone> selected;
    for (const auto& identifier : zones)
        selected.push_back(*m_zones.zone(identifier));
    m_model.setSelectedTimeZones(std::move(selected));
}

void PanelFixture::open() {
    m_panel = std::make_unique<Panel>(new PopoverView(
        m_model,
        {m_pasteboard, m_layout, m_zones, m_queue, m_clock, m_currentZone, {}},
        {[] {},
         [] {},
         [] {},
         [] {},
         [] {
         }}));
    QObject::connect(m_panel.get(), &Panel::fittingHeightChanged, m_panel.get(), [this] {
        m_panel->resize(m_panel->width(), m_panel->fittingHeight());
    });
    m_panel->resize(m_panel->width(), m_panel->fittingHeight());
    m_panel->show();
}

} // namespace quorvane
