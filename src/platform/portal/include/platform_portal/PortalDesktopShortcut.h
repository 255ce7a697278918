// SPDX-License-Identifier: MIT
#pragma once

#include <platform/DesktopShortcut.h>
#include <platform_portal/PortalShortcut.h>

#include <memory>
#include <utility>

namespace quorvane {

/// The desktop's shortcuts as the portal lets programs add to them.
class PortalDesktopShortcut final : public DesktopShortcut {
public:
    explicit PortalDesktopShortcut(std::shared_ptr<PortalShortcut> shortcut)
        : m_shortcut(std::move(shortcut)) {}

    [[nodiscard]] QString desktopName() const override {
        if (!m_shortcut->isOffered())
            return {};
        const auto name = m_shortcut->desktopName();
        return name.isEmpty() ? PortalShortcut::tr("the desktop") : name;
    }

    [[nodiscard]] std::optional<KeyChord> bound() const override { return m_shortcut->chord(); }

    /// The portal settles conflicts with the user.
    [[nodiscard]] QString holder(const KeyChord& /*chord*/) const override { return {}; }

    /// The portal tells changes by itself.
    void refresh() override {}

    void bind(const KeyChord& chord) override { m_shortcut->bind(chord); }

    void unbind() override { m_shortcut->unbind(); }

    void onChanged(std::function<void()> handler) override {
        m_shortcut->onChanged(std::move(handler));
    }

    /// The tap tells.
    void onRebound(std::function<void(const KeyChord&)> /*handler*/) override {}

private:
    std::shared_ptr<PortalShortcut> m_shortcut;
};

} // namespace quorvane
