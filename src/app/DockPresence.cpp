// SPDX-License-Identifier: MIT
#include "DockPresence.h"

#include "PanelPresentation.h"
#include "PreferencesWindowController.h"

#include <QWindow>

namespace quorvane {

void DockPresence::applyActivationPolicy(bool showInDock) {
    m_dependencies.windowTraits.setActivationPolicy(
        showInDock ? ActivationPolicy::Regular : ActivationPolicy::Accessory);
}

void DockPresence::setVisible(bool visible) {
    auto* preferences = m_dependencies.preferences.visibleWindow();
    auto* panel = m_dependencies.panel.visibleWindow();
    auto& traits = m_dependencies.windowTraits;
    applyActivationPolicy(visible);
    auto* first = preferences != nullptr ? preferences : panel;
    if (visible && first != nullptr)
        traits.activate(*first);
    for (auto* window : {preferences, panel}) {
        if (window != nullptr)
            traits.orderFront(*window);
    }
}

} // namespace quorvane
