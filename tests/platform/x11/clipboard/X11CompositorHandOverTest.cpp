// SPDX-License-Identifier: MIT
#include "ForeignReader.h"
#include "PasteboardTest.h"

namespace quorvane {
namespace {

using namespace Qt::StringLiterals;

/// On XWayland, whose window manager is the compositor.
class X11CompositorHandOverTest : public PasteboardTest {
protected:
    X11CompositorHandOverTest() {
        const auto root = m_connection->root();
        const auto window = m_compositor.id();
        for (const auto about : {root, window}) {
            xcb_change_property(
                m_connection->xcb(),
                XCB_PROP_MODE_REPLACE,
                about,
                m_connection->atom("_NET_SUPPORTING_WM_CHECK"),
                XCB_ATOM_WINDOW,
                32,
                1,
                &window);
        }
        EXPECT_EQ(
            m_onXWayland.setString(u"text"_s, TextStay::Lasting, PasteSource::Clipboard),
            PutOutcome::Taken);
    }

    ~X11CompositorHandOverTest() override {
        const auto property = m_connection->atom("_NET_SUPPORTING_WM_CHECK");
        xcb_delete_property(m_connection->xcb(), m_connection->root(), property);
        m_connection->flush();
    }

    void startHandOver() {
        m_onXWayland.handOver([this] { m_isDone = true; });
        EXPECT_FALSE(m_isDone) << "not in a later event-loop iteration";
    }

    static void read(ForeignWindow& window, const QString& target = u"UTF8_STRING"_s) {
        EXPECT_NE(ForeignReader(window, clipboardSelection).read(target), std::nullopt);
    }

    /// Without waiting for a limit to pass.
    [[nodiscard]] bool isDoneAtOnce() {
        return waitUntil([this] { return m_isDone; });
    }

    ForeignWindow m_compositor;
    X11Pasteboard m_onXWayland{m_connection, m_queue, ClipboardKeeper::Compositor};
    bool m_isDone = false;
};

TEST_F(X11CompositorHandOverTest, ItIsOverWhenTheCompositorHasReadTheText) {
    startHandOver();
    read(m_compositor);
    EXPECT_TRUE(isDoneAtOnce());
}

TEST_F(X11CompositorHandOverTest, WhatTheCompositorHasReadBeforeIsNotWaitedFor) {
    read(m_compositor);
    startHandOver();
    EXPECT_TRUE(isDoneAtOnce());
}

TEST_F(X11CompositorHandOverTest, OtherReadersAndQuestionsDoNotEndIt) {
    ForeignWindow other;
    startHandOver();
    read(other);
    read(m_compositor, u"TARGETS"_s);
    m_queue.advance(Seconds(0.999));
    EXPECT_FALSE(m_isDone);
    m_queue.advance(Seconds(0.001));
    EXPECT_TRUE(m_isDone);
}

TEST_F(X11CompositorHandOverTest, WhatWasReadOfAnEarlierCopyDoesNotCount) {
    read(m_compositor);
    EXPECT_EQ(
        m_onXWayland.setString(u"later"_s, TextStay::Lasting, PasteSource::Clipboard),
        PutOutcome::Taken);
    startHandOver();
    m_queue.advance(Seconds(0.999));
    EXPECT_FALSE(m_isDone);
    read(m_compositor);
    EXPECT_TRUE(isDoneAtOnce());
}

TEST_F(X11CompositorHandOverTest, WithoutACompositorItIsDoneSoon) {
    const auto property = m_connection->atom("_NET_SUPPORTING_WM_CHECK");
    xcb_delete_property(m_connection->xcb(), m_connection->root(), property);
    startHandOver();
    EXPECT_TRUE(isDoneAtOnce());
}

} // namespace
} // namespace quorvane
