// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <vector>
#include <wayland_server/WaylandConnection.h>
#include <wayland_server/WaylandSubscription.h>

struct org_kde_kwin_fake_input;

namespace quorvane {

/// Keys in the user's name, by org_kde_kwin_fake_input. They are pressed on the keyboard that the
/// user has, with its layout and with whatever is held there. KWin offers it to programs whose
/// desktop entry asks for it.
class KwinFakeInput {
public:
    static constexpr auto interfaceName = "org_kde_kwin_fake_input";
    /// From here on there are keys.
    static constexpr std::uint32_t firstVersion = 4;

    explicit KwinFakeInput(std::shared_ptr<WaylandConnection> connection);
    ~KwinFakeInput();

    KwinFakeInput(const KwinFakeInput&) = delete;
    KwinFakeInput& operator=(const KwinFakeInput&) = delete;

    [[nodiscard]] bool isAvailable() const { return m_input != nullptr; }

    /// Lets go of the first keys, whether or not they are held; then presses the others in their
    /// order and releases them in reverse. Evdev codes. Does nothing where it is not available.
    void tap(const std::vector<std::uint32_t>& inTheWay, const std::vector<std::uint32_t>& keys);

    /// Called whenever isAvailable() says something else than before; replaces an earlier handler.
    void onChanged(std::function<void()> handler) { m_changed = std::move(handler); }

private:
    void add(const WaylandGlobal& global);
    void end();
    void tellChanged() const;

    std::shared_ptr<WaylandConnection> m_connection;
    org_kde_kwin_fake_input* m_input = nullptr;
    std::uint32_t m_global = 0;
    std::function<void()> m_changed;
    WaylandSubscription m_following;
    WaylandSubscription m_lost;
};

} // namespace quorvane
