// SPDX-License-Identifier: MIT
#pragma once

#include "support/TestClipboard.h"
#include "support/TestCompositor.h"

#include <support/WaitUntil.h>
#include <testing/SteppedMainQueue.h>

#include <gmock/gmock.h>

#include <array>
#include <chrono>
#include <memory>
#include <optional>
#include <string>
#include <vector>
#include <wayland_clipboard/WaylandPasteboard.h>

namespace quorvane {

/// A pasteboard on a compositor that has data-control under one of its names.
class PasteboardFixture : public testing::TestWithParam<TestClipboard::Protocol> {
protected:
    using Kind = TestClipboard::Kind;

    void startSave(PasteSource source = PasteSource::Clipboard) {
        m_saved.reset();
        m_pasteboard.save(
            source, [this](PasteboardContents contents) { m_saved = std::move(contents); });
    }

    /// What the save that has been started gives, however long others take for it.
    [[nodiscard]] PasteboardContents outcome() {
        EXPECT_TRUE(waitUntil([this] { return m_saved.has_value(); }));
        return m_saved.value_or(PasteboardContents{});
    }

    [[nodiscard]] PasteboardContents saved(PasteSource source = PasteSource::Clipboard) {
        startSave(source);
        return outcome();
    }

    [[nodiscard]] PutOutcome
    put(const QString& text, TextStay stay, PasteSource source = PasteSource::Clipboard) {
        return m_pasteboard.setString(text, stay, source);
    }

    /// Puts the text there, and returns when the compositor has it.
    void pass(const QString& text, PasteSource source = PasteSource::Clipboard) {
        EXPECT_EQ(put(text, TextStay::Passing, source), PutOutcome::Taken);
        EXPECT_TRUE(m_connection->settle(std::chrono::seconds(10)));
    }

    void restore(PasteboardItem item, std::optional<PasteboardItem> selection = std::nullopt) {
        m_isRestored = false;
        m_restoring = m_pasteboard.restore(
            std::move(item), std::move(selection), [this] { m_isRestored = true; });
        EXPECT_TRUE(waitUntil([this] { return m_isRestored; }));
        EXPECT_TRUE(m_connection->settle(std::chrono::seconds(10)));
    }

    /// What a program would get that pastes now.
    [[nodiscard]] QByteArray pasted(const std::string& type, Kind kind = Kind::General);

    /// One turn of the event loop, with all that is ready.
    static void turnOnce();

    /// The next piece, which the program under test may have to write first; 0 at the end.
    static qsizetype readSome(int descriptor, std::array<char, 65'536>& piece);

    /// Lets what the compositor has told reach us.
    void catchUp() { EXPECT_TRUE(m_connection->settle(std::chrono::seconds(10))); }

    TestCompositor m_compositor;
    TestClipboard m_clipboard{m_compositor, GetParam()};
    SteppedMainQueue m_queue;
    int m_losses = 0;
    std::shared_ptr<WaylandConnection> m_connection = connect();
    std::shared_ptr<WaylandSeats> m_seats = std::make_shared<WaylandSeats>(m_connection);
    WaylandPasteboard m_pasteboard{m_connection, m_seats, m_queue};
    std::optional<PasteboardContents> m_saved;
    std::unique_ptr<PasteboardRequest> m_restoring;
    bool m_isRestored = false;

private:
    [[nodiscard]] std::shared_ptr<WaylandConnection> connect() {
        auto connection =
            WaylandConnection::open(m_compositor.environment(), std::chrono::seconds(10))
                .connection;
        connection->listen([this] { ++m_losses; });
        return connection;
    }
};

} // namespace quorvane
