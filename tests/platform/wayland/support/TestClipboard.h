// SPDX-License-Identifier: MIT
#pragma once

#include "support/ForeignContents.h"
#include "support/ForeignWriters.h"
#include "support/TestCompositor.h"

#include <map>
#include <string>
#include <vector>

struct wl_client;
struct wl_global;
struct wl_interface;
struct wl_resource;

namespace quorvane {

/// The clipboards of the one seat of a test's compositor, by an extension for clipboard managers.
/// The other programs, whose contents stand there as well, are the test.
class TestClipboard {
public:
    enum class Protocol { Ext, Wlr };
    enum class Kind { General, Primary };

    /// The compositor must outlive it.
    TestClipboard(TestCompositor& compositor, Protocol protocol);
    ~TestClipboard();

    TestClipboard(const TestClipboard&) = delete;
    TestClipboard& operator=(const TestClipboard&) = delete;

    /// Another program copies.
    void copy(const ForeignContents& contents, Kind kind = Kind::General);

    /// Somebody empties the clipboard.
    void empty(Kind kind = Kind::General);

    /// What stands there, whoever offers it; empty for nothing.
    [[nodiscard]] std::vector<std::string> types(Kind kind = Kind::General);

    /// Asks the program under test for that type, as another one would that pastes, and gives the
    /// end to read from.
    [[nodiscard]] int paste(const std::string& type, Kind kind = Kind::General);

    /// How often the program under test has been asked for its own contents by itself.
    [[nodiscard]] int readingsOfItself();

    /// How often the program under test has put something on a clipboard, or emptied it.
    [[nodiscard]] int settings();

    /// The seat goes.
    void removeSeat();

    [[nodiscard]] const ForeignWriters& writers() const { return m_writers; }

private:
    /// What stands on a clipboard.
    struct Selection {
        wl_resource* source = nullptr; ///< of the program under test; null for another's
        ForeignContents foreign;
    };

    /// The requests of all objects, by their numbers, which are the same in both protocols.
    struct Requests;

    void followClient(wl_client* client);
    void announceAll(Kind kind);
    void announce(wl_resource* device, Kind kind);
    void select(wl_resource* source, Kind kind);
    void cancel(Selection& selection, const wl_resource* next);
    void receive(Kind kind, const std::string& type, int descriptor);
    [[nodiscard]] std::vector<std::string> typesOf(const Selection& selection) const;

    TestCompositor& m_compositor;
    const wl_interface* m_interfaces[4];
    wl_global* m_manager = nullptr;
    wl_global* m_seat = nullptr;
    std::vector<wl_resource*> m_devices;
    std::map<wl_resource*, std::vector<std::string>> m_sources;
    std::map<Kind, Selection> m_selections;
    int m_readingsOfItself = 0;
    int m_settings = 0;
    ForeignWriters m_writers;
};

} // namespace quorvane
