// SPDX-License-Identifier: MIT
#pragma once

#include <platform/EventTap.h>
#include <testing/CallLog.h>

#include <memory>

namespace quorvane {

/// A keyboard that the test types on. A tap tries to take the watched shortcut when it is enabled
/// and when it is given another, and keeps what it has got, as on X11. An enabled tap is shown
/// every press, as it is by a desktop that cannot pick one out.
class FakeEventTaps final : public EventTapService {
public:
    /// The state of the last tap that was made, shared with it.
    struct TapState {
        TapHandlers handlers;
        std::optional<KeyChord> watched;
        std::optional<KeyChord> grabbed; ///< what the desktop has given to the tap
        bool enabled = false;
        bool alive = true;
    };

    /// What taps find; shared with them.
    struct Desktop {
        bool heldElsewhere = false;
        QString holder = {}; ///< by whom, where the desktop tells
        bool lacksKey = false;
        bool tellsRelease = true;
        bool isKeyDown = false;
    };

    explicit FakeEventTaps(CallLog& log) : m_log(log) {}

    [[nodiscard]] TapResult createTap(TapHandlers handlers) override;

    /// Types one press; what reaches the application in front comes back as Pass.
    TapVerdict press(const KeyPress& press);

    /// Lets go of the watched key, which the tap is told where the desktop tells releases.
    void release();

    /// The user gives the shortcut other keys in the desktop's settings.
    void changeChord(const KeyChord& chord);

    /// From now on, no tap can be had.
    void refuse(TapFailure failure) { m_refusal = std::move(failure); }

    /// Taps can be had again.
    void permit() { m_refusal.reset(); }

    /// Whether another program holds the shortcuts that no tap has taken.
    void setHeldElsewhere(bool held) { m_desktop->heldElsewhere = held; }

    /// What people call the program that holds them.
    void setHolder(const QString& name) { m_desktop->holder = name; }

    /// Whether the keyboard lacks the keys of every shortcut.
    void setLacksKey(bool lacks) { m_desktop->lacksKey = lacks; }

    /// Whether the desktop tells when a key goes up.
    void setTellsRelease(bool tells) { m_desktop->tellsRelease = tells; }

    /// The user is in the middle of a press of which no tap has seen the beginning.
    void holdKey() { m_desktop->isKeyDown = true; }

    /// Null before the first tap.
    [[nodiscard]] const TapState* tap() const { return m_tap.get(); }

private:
    CallLog& m_log;
    std::optional<TapFailure> m_refusal;
    std::shared_ptr<TapState> m_tap;
    std::shared_ptr<Desktop> m_desktop = std::make_shared<Desktop>();
};

} // namespace quorvane
