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

/// Decides about a press, at once: keys that are typed after it may have to wait for the answer.
using KeyPressHandler = std::function<TapVerdict(const KeyPress&)>;

/// Gets the presses of one shortcut before every application. Backends that can (X11) take hold of
/// that shortcut alone, and see no other key. Destroying the tap gives the shortcut up.
class EventTap {
public:
    virtual ~EventTap() = default;

    /// Which press to deliver, from now on; none for no press. A backend may deliver others as
    /// well.
    virtual void watch(std::optional<KeyChord> chord) = 0;

    virtual void enable() = 0;
    virtual void disable() = 0;

    /// Whether the watched press is really ours: false while disabled, and where another program
    /// held it when this tap last tried, by watch() or enable().
    [[nodiscard]] virtual bool isDelivering() const = 0;
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
    [[nodiscard]] virtual TapResult createTap(KeyPressHandler handler) = 0;
};

} // namespace quorvane
