// SPDX-License-Identifier: MIT
#pragma once

#include <platform/DesktopShortcut.h>
#include <testing/CallLog.h>

#include <utility>

namespace quorvane {

/// A desktop's list of shortcuts that the test fills. Changes are announced at once; the real ones
/// take a moment.
class FakeDesktopShortcut final : public DesktopShortcut {
public:
    explicit FakeDesktopShortcut(CallLog& log) : m_log(log) {}

    [[nodiscard]] QString desktopName() const override { return m_name; }

    [[nodiscard]] std::optional<KeyChord> bound() const override { return m_bound; }

    [[nodiscard]] QString holder(const KeyChord& chord) const override {
        return chord == m_held.first ? m_held.second : QString();
    }

    void refresh() override { m_log.add("refresh shortcuts"); }

    void bind(const KeyChord& chord) override {
        m_log.add("bind");
        setBound(chord);
    }

    void unbind() override {
        m_log.add("unbind");
        setBound(std::nullopt);
    }

    void onChanged(std::function<void()> handler) override { m_changed = std::move(handler); }

    void onRebound(std::function<void(const KeyChord&)> handler) override {
        m_rebound = std::move(handler);
    }

    /// There is a list, of a desktop that is called so.
    void setDesktopName(const QString& name) { m_name = name; }

    /// Our entry is there, or not.
    void setBound(std::optional<KeyChord> chord) {
        m_bound = chord;
        m_changed();
    }

    /// The user has changed our entry in the desktop's own settings.
    void rebind(const KeyChord& chord) {
        setBound(chord);
        m_rebound(chord);
    }

    /// Another command has this shortcut.
    void setHolder(const KeyChord& chord, const QString& name) { m_held = {chord, name}; }

private:
    CallLog& m_log;
    QString m_name;
    std::optional<KeyChord> m_bound;
    std::pair<KeyChord, QString> m_held;
    std::function<void()> m_changed = [] {
    };
    std::function<void(const KeyChord&)> m_rebound = [](const KeyChord&) {
    };
};

} // namespace quorvane
