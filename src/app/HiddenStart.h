// SPDX-License-Identifier: MIT
#pragma once

#include <loop/Deadline.h>
#include <loop/MainQueue.h>

#include <functional>

namespace quorvane {

/// A start at which nothing shows. The icon and the shortcut lead to the interface; a login starts
/// what they need beside this program, so that they may come later. Where neither has come in time,
/// the interface shows after all.
class HiddenStart final {
public:
    /// From a login's first program to its bar, on a slow machine.
    static constexpr Seconds patience{10};

    struct Callbacks {
        std::function<bool()> isReachable; ///< whether the user has a way to the interface
        std::function<void()> show;
    };

    /// `queue` must outlive this.
    HiddenStart(MainQueue& queue, Callbacks callbacks);

    void begin();

    /// The interface has been asked for: whoever asks knows a way to it.
    void end() { m_lastMoment.cancel(); }

private:
    MainQueue& m_queue;
    Callbacks m_callbacks;
    Deadline m_lastMoment;
};

} // namespace quorvane
