// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace quorvane {

/// What a launcher hands to the program that it opens, by which the desktop knows that the user
/// wants the window that comes. A launcher gives either of the two, both, or none.
struct ActivationToken {
    QString token;     ///< of xdg_activation_v1, Wayland's protocol
    QString startupId; ///< of the Startup Notification Protocol, X11's

    [[nodiscard]] bool isEmpty() const { return token.isEmpty() && startupId.isEmpty(); }

    [[nodiscard]] bool operator==(const ActivationToken&) const = default;
};

/// From texts of other programs: one that is too long, or has characters that no such text has,
/// counts as none.
[[nodiscard]] ActivationToken activationTokenOf(const QString& token, const QString& startupId);

/// What this process was started with, which is taken out of its environment: programs that it
/// starts are no part of it.
[[nodiscard]] ActivationToken takeActivationTokenOfProcess();

} // namespace quorvane
