// SPDX-License-Identifier: MIT
#pragma once

#include "SelectionOffers.h"
#include "support/ForeignWindow.h"
#include "support/WaitUntil.h"

#include <testing/SteppedMainQueue.h>
#include <x11_clipboard/X11Pasteboard.h>

#include <gtest/gtest.h>

#include <memory>
#include <optional>

namespace quorvane {

/// A pasteboard on the display of the test program; the next test finds both selections empty.
class PasteboardTest : public testing::Test {
protected:
    void startSave() {
        m_saved.reset();
        m_pasteboard.save(
            m_source, [this](PasteboardContents contents) { m_saved = std::move(contents); });
    }

    /// What the save that has been started gives, however long others take for it.
    [[nodiscard]] PasteboardContents outcome() {
        EXPECT_TRUE(waitUntil([this] { return m_saved.has_value(); }));
        return m_saved.value_or(PasteboardContents{});
    }

    [[nodiscard]] PasteboardContents saved() {
        startSave();
        return outcome();
    }

    /// The outcome at the end of a span, not a millisecond before.
    [[nodiscard]] PasteboardContents outcomeAfter(Seconds span) {
        constexpr Seconds millisecond{0.001};
        m_queue.advance(span - millisecond);
        EXPECT_FALSE(m_saved.has_value());
        m_queue.advance(millisecond);
        EXPECT_TRUE(m_saved.has_value());
        return m_saved.value_or(PasteboardContents{});
    }

    /// The one item of a save.
    [[nodiscard]] PasteboardItem savedItem() {
        const auto contents = saved();
        EXPECT_EQ(contents.items.size(), 1);
        return contents.items.empty() ? PasteboardItem{} : contents.items.front();
    }

    void copy(const QString& text) {
        EXPECT_EQ(m_pasteboard.setString(text, TextStay::Lasting, m_source), PutOutcome::Taken);
    }

    void pass(const QString& text) {
        EXPECT_EQ(m_pasteboard.setString(text, TextStay::Passing, m_source), PutOutcome::Taken);
    }

    void restore(PasteboardItem item, std::optional<PasteboardItem> selection = std::nullopt) {
        m_isRestored = false;
        m_restoring = m_pasteboard.restore(
            std::move(item), std::move(selection), [this] { m_isRestored = true; });
    }

    /// Without waiting for a limit to pass.
    [[nodiscard]] bool isRestoredSoon() {
        return waitUntil([this] { return m_isRestored; });
    }

    /// What we own when an insertion is over, and nobody is to get its text any more.
    void giveBack(const PasteboardItem& item) {
        pass(QStringLiteral("passing"));
        restore(item);
        m_queue.advance(X11LateText::longestForEarlierRequests);
    }

    /// Another program takes a selection, and says nothing when it is asked. The main loop has not
    /// turned when this returns: we have not been told.
    static void takeSelection(const ForeignWindow& program, xcb_atom_t selection) {
        auto* xcb = program.connection();
        xcb_set_selection_owner(xcb, program.id(), selection, XCB_CURRENT_TIME);
        const XcbReply<xcb_get_input_focus_reply_t> done(
            xcb_get_input_focus_reply(xcb, xcb_get_input_focus(xcb), nullptr));
    }

    SteppedMainQueue m_queue;
    std::shared_ptr<X11Connection> m_connection = X11Connection::open();
    X11Pasteboard m_pasteboard{m_connection, m_queue};
    PasteSource m_source = PasteSource::Clipboard; ///< of the window in front
    std::optional<PasteboardContents> m_saved;
    std::unique_ptr<PasteboardRequest> m_restoring;
    bool m_isRestored = false;
};

} // namespace quorvane
