// SPDX-License-Identifier: MIT
#include "PortalEventTap.h"

#include <utility>

namespace quorvane {

PortalEventTap::PortalEventTap(std::shared_ptr<PortalShortcut> shortcut, TapHandlers handlers)
    : m_shortcut(std::move(shortcut)),
      m_handlers(std::move(handlers)) {
    m_shortcut->deliverTo(
        {[this] { tellPress(); },
         m_handlers.released,
         m_handlers.chordChanged,
         m_handlers.deliveryChanged});
}

PortalEventTap::~PortalEventTap() {
    m_shortcut->deliverTo({});
}

void PortalEventTap::watch(std::optional<KeyChord> chord) {
    m_chord = chord;
    if (m_chord)
        m_shortcut->watch(*m_chord);
}

void PortalEventTap::enable() {
    m_isEnabled = true;
}

void PortalEventTap::disable() {
    m_isEnabled = false;
}

TapDelivery PortalEventTap::delivery() const {
    return m_isEnabled && m_chord && m_shortcut->isBound() ? TapDelivery::Delivering
                                                           : TapDelivery::Off;
}

void PortalEventTap::tellPress() {
    if (delivery() == TapDelivery::Delivering)
        (void) m_handlers.pressed({m_chord->keyCode, m_chord->flags});
}

} // namespace quorvane
