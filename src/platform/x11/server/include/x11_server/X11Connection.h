// SPDX-License-Identifier: MIT
#pragma once

#include <x11_server/X11AtomNames.h>
#include <x11_server/XcbReply.h>

#include <QObject>
#include <QString>
#include <QStringList>
#include <xcb/xcb.h>

#include <functional>
#include <list>
#include <memory>
#include <string>
#include <unordered_map>
#include <vector>

class QSocketNotifier;

namespace quorvane {

/// A connection to the X server of our own, beside Qt's: what goes wrong here never reaches Qt, and
/// what Qt does with its events never reaches us. Shared by all services of this backend.
class X11Connection final : public QObject, public std::enable_shared_from_this<X11Connection> {
    Q_OBJECT

public:
    using EventHandler = std::function<void(const xcb_generic_event_t&)>;

    /// Ends the delivery of events to its handler when it goes.
    class Subscription {
    public:
        Subscription() = default;
        explicit Subscription(std::shared_ptr<EventHandler> handler);

    private:
        std::shared_ptr<EventHandler> m_handler;
    };

    /// None where $DISPLAY names no server that answers. `onLost` is called, once and on the main
    /// loop, when the connection has ended or broken; by then the server has been told, so that it
    /// takes back what it had given us: grabs, selections, windows.
    [[nodiscard]] static std::shared_ptr<X11Connection> open(std::function<void()> onLost = {});

    ~X11Connection() override;

    [[nodiscard]] xcb_connection_t* xcb() const { return m_connection; }

    [[nodiscard]] xcb_window_t root() const { return m_screen->root; }

    [[nodiscard]] const xcb_screen_t& screen() const { return *m_screen; }

    /// Of the screen in use, among those of the server.
    [[nodiscard]] int screenNumber() const { return m_screenNumber; }

    /// Whether the window was made by this connection.
    [[nodiscard]] bool owns(xcb_window_t window) const;

    [[nodiscard]] xcb_atom_t atom(const char* name);
    [[nodiscard]] xcb_atom_t atom(const QString& name);

    /// Asks for names that will be needed, all in one round trip.
    void learnAtoms(const std::vector<const char*>& names);

    /// For names that others have chosen: all in one round trip, and none of them is kept.
    [[nodiscard]] std::vector<xcb_atom_t> atoms(const QStringList& names) const;

    /// In one round trip at most. Empty for an atom that the server does not know.
    [[nodiscard]] QStringList atomNames(const std::vector<xcb_atom_t>& atoms);

    /// The window that owns the selection, of any program; XCB_WINDOW_NONE for none.
    [[nodiscard]] xcb_window_t selectionOwner(xcb_atom_t selection) const;

    /// Every event and error of this connection, in order, on the main loop. A handler may
    /// subscribe and unsubscribe others.
    [[nodiscard]] Subscription subscribe(EventHandler handler);

    void flush();

    /// Returns when the server has carried out all requests so far.
    void waitForServer();

    /// True once the server has carried out the request without an error; waits for it.
    [[nodiscard]] bool succeeded(xcb_void_cookie_t checkedRequest);

    /// The server's time of the user's last action that we saw; 0 (CurrentTime) before the first.
    [[nodiscard]] xcb_timestamp_t lastUserTime() const { return m_lastUserTime; }

    /// An earlier time than the one known, and CurrentTime, change nothing.
    void noteUserTime(xcb_timestamp_t time);

private:
    X11Connection(xcb_connection_t* connection, int preferredScreen, std::function<void()> onLost);

    void drain();
    void dispatch(const xcb_generic_event_t& event);
    void giveUp();

    xcb_connection_t* m_connection;
    int m_screenNumber;
    const xcb_screen_t* m_screen;
    std::unique_ptr<QSocketNotifier> m_notifier;
    std::list<std::weak_ptr<EventHandler>> m_handlers;
    std::unordered_map<std::string, xcb_atom_t> m_atoms;
    X11AtomNames m_atomNames;
    xcb_timestamp_t m_lastUserTime = XCB_CURRENT_TIME;
    std::function<void()> m_onLost;
};

} // namespace quorvane
