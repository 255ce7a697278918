// SPDX-License-Identifier: MIT
#pragma once

#include <platform/Appearance.h>
#include <x11_server/X11Connection.h>
#include <x11_server/X11WindowWatch.h>

#include <cstdint>
#include <memory>

namespace quorvane {

/// The appearance as the desktop's settings manager tells it on the X server (XSETTINGS): that of
/// Xfce, Mate, Cinnamon, LXQt, GNOME. Known from the beginning, and followed. What a manager said
/// holds until one says something else, so that nothing flashes while one is started anew.
class X11Appearance final : public Appearance {
public:
    explicit X11Appearance(std::shared_ptr<X11Connection> connection);
    ~X11Appearance() override;

    [[nodiscard]] DesktopAppearance current() const override { return m_current; }

    void read() override {}

    void onChanged(std::function<void()> handler) override { m_changed = std::move(handler); }

private:
    void followManagers();
    void adoptManager(xcb_window_t manager);
    void readSettings();
    void handleEvent(const xcb_generic_event_t& event);

    std::shared_ptr<X11Connection> m_connection;
    xcb_atom_t m_selection;
    xcb_atom_t m_property;
    int m_ownerNotice =
        -1; ///< the number of the event that tells of a new manager; -1 if none does
    xcb_window_t m_manager = XCB_WINDOW_NONE;
    std::unique_ptr<X11WindowWatch> m_watch;
    DesktopAppearance m_current;
    std::function<void()> m_changed;
    X11Connection::Subscription m_subscription;
};

} // namespace quorvane
