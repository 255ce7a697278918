// SPDX-License-Identifier: MIT
#pragma once

#include <platform/DesktopShortcut.h>

#include <memory>
#include <vector>

namespace quorvane {

/// Several lists of shortcuts, each of which may come and go. The one that has our entry counts,
/// else the first that is there.
class ShortcutLists final : public DesktopShortcut {
public:
    using Lists = std::vector<std::unique_ptr<DesktopShortcut>>;

    /// At least one, the best first.
    explicit ShortcutLists(Lists lists) : m_lists(std::move(lists)) {}

    [[nodiscard]] QString desktopName() const override { return current().desktopName(); }

    [[nodiscard]] std::optional<KeyChord> bound() const override { return current().bound(); }

    [[nodiscard]] QString holder(const KeyChord& chord) const override {
        return current().holder(chord);
    }

    void refresh() override;

    void bind(const KeyChord& chord) override { current().bind(chord); }

    void unbind() override { current().unbind(); }

    void onChanged(std::function<void()> handler) override;
    void onRebound(std::function<void(const KeyChord&)> handler) override;

private:
    [[nodiscard]] DesktopShortcut& current() const;

    Lists m_lists;
};

} // namespace quorvane
