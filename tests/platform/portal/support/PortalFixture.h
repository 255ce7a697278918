// SPDX-License-Identifier: MIT
#pragma once

#include "../../dbus/support/PrivateBus.h"
#include "FakeRemoteDesktop.h"

#include <platform_portal/PortalKeyboard.h>
#include <support/WaitUntil.h>
#include <testing/MemoryDefaults.h>
#include <testing/VirtualMainQueue.h>

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <vector>

namespace quorvane {

/// A program at a portal of our own making, on a bus of its own and a virtual clock.
class PortalFixture : public testing::Test {
protected:
    /// A new run of the program, with the settings of the last one.
    void startProgram() {
        keyboard.reset();
        desktop = std::make_shared<PortalDesktop>(bus.connection());
        keyboard = std::make_shared<PortalKeyboard>(desktop, queue, RestoreToken(defaults));
        keyboard->onChanged([this] { states.push_back(keyboard->state()); });
    }

    [[nodiscard]] bool comesTo(const std::function<bool()>& condition) {
        return waitUntil([&] {
            queue.run();
            return condition();
        });
    }

    [[nodiscard]] bool comesTo(TypingRight state) {
        return comesTo([&] { return keyboard->state() == state; });
    }

    /// Whether the user is asked and the portal's answer has come to stand as this.
    [[nodiscard]] bool opensTo(TypingRight state) {
        keyboard->open();
        return comesTo(state);
    }

    /// Whether the bus has handed over all that was sent until now, and what was sent in reply.
    [[nodiscard]] bool settles() { return isPingAnswered() && isPingAnswered(); }

    [[nodiscard]] bool isPingAnswered() {
        bool isAnswered = false;
        QObject context;
        desktop->ask(
            desktop->question(u"org.freedesktop.DBus.Peer", u"Ping"),
            &context,
            [&](const QDBusMessage&) { isAnswered = true; });
        return comesTo([&] { return isAnswered; });
    }

    PrivateBus bus;
    VirtualMainQueue queue;
    MemoryDefaults defaults;
    FakeRemoteDesktop portal{bus.connection()};
    std::vector<TypingRight> states;
    std::shared_ptr<PortalDesktop> desktop;
    std::shared_ptr<PortalKeyboard> keyboard;
};

} // namespace quorvane
