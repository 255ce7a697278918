// SPDX-License-Identifier: MIT
#pragma once

#include <platform/ActivationToken.h>

#include <QString>

#include <functional>

namespace quorvane {

/// The one running process of this program in the user's session, as the desktop addresses it.
class ApplicationInstance {
public:
    enum class Role {
        First,  ///< this process is the one
        Second, ///< another one runs
        Alone,  ///< the session has no way to tell; this process runs by itself
    };

    /// What a start means for the process that runs already.
    enum class Request {
        Show,   ///< it is to come forward
        Nothing ///< it stays as it is
    };

    virtual ~ApplicationInstance() = default;

    /// Becomes the running process, or hands the request to the one that is. Called once, before
    /// anything is made that a second process must not have. `token` is what this process was
    /// started with, and goes with the request.
    [[nodiscard]] virtual Role claim(Request request, const ActivationToken& token) = 0;

    /// Releases the name before the process ends, so that a new start becomes the first process.
    virtual void release() = 0;

    /// The user opened the program again; replaces an earlier handler.
    virtual void onReopen(std::function<void(const ActivationToken&)> handler) = 0;

    /// The desktop asks for an action by its name; replaces an earlier handler.
    virtual void
    onAction(std::function<void(const QString& name, const ActivationToken&)> handler) = 0;
};

} // namespace quorvane
