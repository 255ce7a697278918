// SPDX-License-Identifier: MIT
#pragma once

#include <loop/MainQueue.h>

namespace quorvane {

/// Tells the trigger by which a press of the shortcut begins from those of the held key's repeats.
class ShortcutPress final {
public:
    /// The queue must outlive it.
    explicit ShortcutPress(MainQueue& queue) : m_queue(queue) {}

    /// To be called for each trigger: whether it begins a press. Where releases are told, a press
    /// lasts until end(), or until a second has passed without a trigger, should a release get
    /// lost; where they are not, triggers less than 0.15 s apart are one press.
    [[nodiscard]] bool begins(bool tellsRelease);

    /// The key is known to be down by a press that was not ours, and its release will be told.
    void join() { (void) begins(true); }

    /// The key is known to be up.
    void end();

private:
    MainQueue& m_queue;
    bool m_isDown = false;
    Deadline m_silence;
};

} // namespace quorvane
