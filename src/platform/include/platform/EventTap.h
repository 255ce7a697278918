// SPDX-License-Identifier: MIT
#pragma once

#include <platform/KeyChord.h>

#include <QString>

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <variant>

namespace quorvane {

/// One key going down, auto-repeats included.
struct KeyPress {
    std::int64_t keyCode = 0;
    ModifierFlags flags; ///< everything held, lock keys included
};

enum class TapVerdict { Pass, Swallow };

/// Decides about a press, at once: it stands in the way of every key of the session.
using KeyPressHandler = std::function<TapVerdict(const KeyPress&)>;

/// A filter on the session's key presses, in front of every application. Destroying it frees all
/// that it holds from the desktop.
class EventTap {
public:
    virtual ~EventTap() = default;

    /// Which press to deliver, from now on: backends that cannot see every key ask the desktop for
    /// this one alone. None asks for nothing.
    virtual void watch(std::optional<KeyChord> chord) = 0;

    virtual void enable() = 0;
    virtual void disable() = 0;

    /// Whether the watched press is really ours: false while disabled, and while another program
    /// holds it.
    [[nodiscard]] virtual bool isDelivering() const = 0;
};

/// Why there is no tap, and whether asking again later can help.
struct TapFailure {
    enum class Retry { Pointless, Possible };

    QString reason;
    Retry retry = Retry::Pointless;

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
