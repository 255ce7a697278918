// SPDX-License-Identifier: MIT
#pragma once

#include <platform/EventTap.h>

#include <QString>

#include <functional>
#include <optional>

namespace quorvane {

/// The desktop's own list of shortcuts, where it lets programs change that and take hold of keys in
/// no other way: an entry of ours calls the program's action "toggle". Reads and changes run on
/// while the program does; their outcome shows in a later iteration of the event loop.
class DesktopShortcut {
public:
    virtual ~DesktopShortcut() = default;

    /// What people call the desktop whose list it is; empty where there is no such list.
    [[nodiscard]] virtual QString desktopName() const = 0;

    /// What our entry binds, as it was read last; none without an entry.
    [[nodiscard]] virtual std::optional<KeyChord> bound() const = 0;

    /// What people call the command that has the shortcut already, as it was read last; empty for
    /// nobody else.
    [[nodiscard]] virtual QString holder(const KeyChord& chord) const = 0;

    /// Reads the list anew.
    virtual void refresh() = 0;

    /// Makes our entry, or gives it another shortcut. Only for what the user has just asked for.
    virtual void bind(const KeyChord& chord) = 0;

    /// Takes our entry away, and nothing else.
    virtual void unbind() = 0;

    /// Called whenever bound() or holder() may say something else than before; replaces an earlier
    /// handler.
    virtual void onChanged(std::function<void()> handler) = 0;

    /// Called with the chord that our entry binds when it was read first, and whenever the user has
    /// given it other keys in the desktop's own settings; replaces an earlier handler. Not for what
    /// bind() has done, and not where the event tap tells of it.
    virtual void onRebound(std::function<void(const KeyChord&)> handler) = 0;
};

} // namespace quorvane
