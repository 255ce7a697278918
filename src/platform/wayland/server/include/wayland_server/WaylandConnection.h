// SPDX-License-Identifier: MIT
#pragma once

#include <settings/Environment.h>

#include <QObject>
#include <QString>

#include <chrono>
#include <functional>
#include <list>
#include <memory>
#include <wayland_server/WaylandGlobals.h>
#include <wayland_server/WaylandSubscription.h>

class QSocketNotifier;

namespace quorvane {

/// A connection to the compositor of our own, beside Qt's: what goes wrong here never reaches Qt,
/// and it is there whatever platform Qt runs on. Shared by all services of this backend; their
/// proxies must be destroyed before it.
class WaylandConnection final : public QObject,
                                public std::enable_shared_from_this<WaylandConnection> {
    Q_OBJECT

public:
    /// What became of the attempt to reach the compositor.
    enum class Attempt {
        Absent, ///< the environment names none, or nobody listens there
        Silent, ///< it did not answer in time
        Connected
    };

    struct Opened {
        Attempt attempt = Attempt::Absent;
        std::shared_ptr<WaylandConnection> connection; ///< none but for Connected
    };

    /// Waits for the list of globals, for `patience` at most. No application object is needed.
    [[nodiscard]] static Opened
    open(const Environment& environment, std::chrono::milliseconds patience);

    ~WaylandConnection() override;

    /// From now on events are handled by the event loop of this thread. `onLost` is called once,
    /// on the main loop, when the connection has ended or broken: it does nothing from then on.
    void listen(std::function<void()> onLost = {});

    [[nodiscard]] wl_display* display() const { return m_display; }

    [[nodiscard]] WaylandGlobals& globals() { return *m_globals; }

    /// Whether the connection has ended; requests go nowhere then, and no more events come.
    [[nodiscard]] bool isLost() const { return m_isLost; }

    /// Called once when the connection ends, before the `onLost` of listen().
    [[nodiscard]] WaylandSubscription whenLost(std::function<void()> handler);

    /// Sends what has been requested; what the compositor does not take now follows when it does.
    /// The event loop does the same before it waits.
    void flush();

    /// Handles events until the compositor has carried out all requests so far; false if it has not
    /// done so in time, or the connection is lost.
    [[nodiscard]] bool settle(std::chrono::milliseconds patience);

    /// Calls `done` in a later iteration of the event loop, when the compositor has carried out all
    /// requests so far and all that it told before was handled. Never if the connection is lost or
    /// the subscription dropped.
    [[nodiscard]] WaylandSubscription whenSettled(std::function<void()> done);

private:
    using Clock = std::chrono::steady_clock;
    using Handler = std::function<void()>;
    struct Sync;

    explicit WaylandConnection(wl_display* display);

    [[nodiscard]] bool handleEventsBefore(Clock::time_point end);
    void drain();
    void readEvents();
    void giveUp();

    wl_display* m_display;
    std::unique_ptr<WaylandGlobals> m_globals;
    std::unique_ptr<QSocketNotifier> m_incoming;
    std::unique_ptr<QSocketNotifier> m_outgoing; ///< while the compositor does not keep up
    std::list<std::weak_ptr<Handler>> m_lostHandlers;
    Handler m_onLost;
    bool m_isLost = false;
};

} // namespace quorvane
