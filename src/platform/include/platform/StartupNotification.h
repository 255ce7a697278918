// SPDX-License-Identifier: MIT
#pragma once

#include <platform/ActivationToken.h>

namespace quorvane {

/// How the desktop follows what the user has opened, from the click on it until it is there: the
/// pointer shows that something is under way, and the window that comes is not kept behind the
/// others.
class StartupNotification {
public:
    virtual ~StartupNotification() = default;

    /// The user has opened the program, or called one of its actions, by this token. What shows
    /// until end() comes to the front by it. An empty token does nothing.
    virtual void begin(const ActivationToken& token) = 0;

    /// What was asked for has been done, whether or not anything shows: the desktop need not wait
    /// any longer, and what shows from now on is not part of it.
    virtual void end() = 0;
};

} // namespace quorvane
