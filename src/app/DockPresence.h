// SPDX-License-Identifier: MIT
#pragma once

#include <platform/WindowTraits.h>

namespace quorvane {

class PanelPresentation;
class PreferencesWindowController;

/// Whether the program's windows have entries in the taskbar.
class DockPresence final {
public:
    /// All must outlive this.
    struct Dependencies {
        WindowTraits& windowTraits;
        const PreferencesWindowController& preferences;
        const PanelPresentation& panel;
    };

    explicit DockPresence(Dependencies dependencies) : m_dependencies(dependencies) {}

    /// Adds the entries or removes them; changes no order or focus.
    void applyActivationPolicy(bool showInDock);

    /// The user has changed the switch: visible windows stay in front. When the entries appear, one
    /// window gets the focus, the preferences first.
    void setVisible(bool visible);

private:
    Dependencies m_dependencies;
};

} // namespace quorvane
