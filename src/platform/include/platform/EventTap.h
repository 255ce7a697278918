// SPDX-License-Identifier: MIT
#pragma once

#include <platform/ModifierFlags.h>

#include <QString>

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <variant>

namespace quorvane {

/// A key by its position, with exactly these of the counted modifiers held.
struct KeyChord {
    std::uint32_t keyCode = 0; ///< see KeyCodes.h
    ModifierFlags flags;

    friend constexpr bool operator==(const KeyChord&, const KeyChord&) = default;
};

/// One key going down, auto-repeats included.
struct KeyPress {
    std::int64_t keyCode = 0;
    ModifierFlags flags; ///< everything held, lock keys included
};

enum class TapVerdict { Pass, Swallow };

/// Decides about a press. A backend that takes hold of one shortcut alone keeps its press from
/// every application, whatever the answer is: no key is ever made to wait for it.
using KeyPressHandler = std::function<TapVerdict(const KeyPress&)>;

/// Whether presses of the watched shortcut come to the tap.
enum class TapDelivery {
    Off, ///< disabled, or nothing is watched
    Delivering,
    HeldElsewhere, ///< another program held it when this tap last tried, by watch() or enable()
    NoSuchKey,     ///< this keyboard cannot type it
    Unavailable ///< the desktop's service for it has gone, or the user took the shortcut away there
};

/// What a tap calls, on the main thread.
struct TapHandlers {
    KeyPressHandler pressed;
    /// The watched key went up, after one press or more; only where tellsRelease().
    std::function<void()> released;
    /// delivery() says something else than before.
    std::function<void()> deliveryChanged;
    /// The user has given the watched shortcut other keys, in the desktop's own settings.
    std::function<void(const KeyChord&)> chordChanged = [](const KeyChord&) {
    };
};

/// Gets the presses of one shortcut before every application. Backends that can (X11) take hold of
/// that shortcut alone, and see no other key. Destroying the tap gives the shortcut up.
class EventTap {
public:
    virtual ~EventTap() = default;

    /// Which press to deliver, from now on; none for no press. A backend may deliver others as
    /// well.
    virtual void watch(std::optional<KeyChord> chord) = 0;

    /// A repeated call asks again for a shortcut that another program held.
    virtual void enable() = 0;
    virtual void disable() = 0;

    [[nodiscard]] virtual TapDelivery delivery() const = 0;

    /// What people call the program that holds the shortcut elsewhere; empty where nobody tells.
    [[nodiscard]] virtual QString holder() const = 0;

    /// Whether the end of each press is told. Where it is not, a press and the repeats of a key
    /// that is held down look alike.
    [[nodiscard]] virtual bool tellsRelease() const = 0;

    /// Whether the watched key is down now; its release is told then, as after a press. For a tap
    /// that begins in the middle of one, as when the user records the shortcut that is pressed.
    /// False where the desktop does not tell.
    [[nodiscard]] virtual bool isKeyDown() = 0;
};

/// Why there is no tap, for the log.
struct TapFailure {
    QString reason;

    friend bool operator==(const TapFailure&, const TapFailure&) = default;
};

using TapResult = std::variant<std::unique_ptr<EventTap>, TapFailure>;

class EventTapService {
public:
    virtual ~EventTapService() = default;

    /// A tap that is disabled and watches nothing yet.
    [[nodiscard]] virtual TapResult createTap(TapHandlers handlers) = 0;
};

} // namespace quorvane
