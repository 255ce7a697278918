// SPDX-License-Identifier: MIT
#pragma once

#include "TestCompositor.h"

#include <QByteArray>

#include <cstdint>
#include <vector>

struct wl_client;
struct wl_global;
struct wl_resource;

namespace quorvane {

/// A seat of a compositor, with a keyboard whose keymap is a text of the test's.
class TestSeat {
public:
    /// Puts it among the globals; the compositor must outlive it.
    TestSeat(TestCompositor& compositor, QByteArray keymap = {});

    /// Stops the compositor: the seat is told of the end of each keyboard.
    ~TestSeat();

    TestSeat(const TestSeat&) = delete;
    TestSeat& operator=(const TestSeat&) = delete;

    /// Gives every program this keymap, and says that it has so many bytes.
    void setKeymap(const QByteArray& text, std::uint32_t size);

private:
    static void bind(wl_client* client, void* data, std::uint32_t version, std::uint32_t id);
    static void getKeyboard(wl_client* client, wl_resource* seat, std::uint32_t id);
    static void sendKeymap(wl_resource* keyboard, const QByteArray& text, std::uint32_t size);

    TestCompositor& m_compositor;
    QByteArray m_keymap;
    std::vector<wl_resource*> m_keyboards;
};

} // namespace quorvane
