// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QRect>
#include <QString>

#include <cstdint>
#include <optional>

namespace quorvane {

/// A screen shows another workspace, or the user has gone to another screen.
struct SwayWorkspaceFocus {
    QString output;         ///< the screen that the user works on now, by its name
    bool isSwitched = true; ///< the screen showed another workspace before

    friend bool operator==(const SwayWorkspaceFocus&, const SwayWorkspaceFocus&) = default;
};

/// A window as sway's tree has it.
struct SwayWindow {
    std::int64_t id = 0;
    std::int64_t pid = 0;
    QString title;
    bool isFocused = false;
    QRect frame; ///< without what sway draws around it

    friend bool operator==(const SwayWindow&, const SwayWindow&) = default;
};

// Each takes the payload of one message, and gives none for what it does not understand.

/// Of a workspace event that says so.
[[nodiscard]] std::optional<SwayWorkspaceFocus> workspaceFocusIn(const QByteArray& payload);

/// Of the answer to GetWorkspaces.
[[nodiscard]] std::optional<QString> focusedOutputIn(const QByteArray& payload);

/// Of a window event, for a window that has just taken its title, as each does when it appears.
[[nodiscard]] std::optional<SwayWindow> namedWindowIn(const QByteArray& payload);

/// The window of a process and a title in the answer to GetTree.
[[nodiscard]] std::optional<SwayWindow>
windowIn(const QByteArray& payload, std::int64_t pid, const QString& title);

} // namespace quorvane
