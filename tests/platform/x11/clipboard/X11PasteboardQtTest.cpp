// SPDX-License-Identifier: MIT
#include "PasteboardTest.h"
#include "X11QtClipboard.h"
#include "support/ForeignWindow.h"
#include "support/Keyboard.h"

#include <x11_server/QtX11.h>

#include <QClipboard>
#include <QElapsedTimer>
#include <QGuiApplication>
#include <QLineEdit>
#include <QMimeData>
#include <QWindow>

#include <linux/input-event-codes.h>

namespace quorvane {
namespace {

using namespace Qt::StringLiterals;

// Milliseconds for which Qt blocks its main loop when the owner of a selection does not answer.
constexpr qint64 waitOfQt = 5000;

/// A pasteboard beside Qt's clipboard in one process.
class X11PasteboardQtTest : public PasteboardTest {
protected:
    X11PasteboardQtTest() { m_field.show(); }

    // Not by Qt, whose clock may be behind the last change of the focus.
    void focusOurField() {
        ASSERT_TRUE(waitUntil([this] { return m_field.windowHandle()->isExposed(); }));
        xcb_set_input_focus(
            m_connection->xcb(),
            XCB_INPUT_FOCUS_PARENT,
            static_cast<xcb_window_t>(m_field.winId()),
            XCB_CURRENT_TIME);
        m_connection->flush();
        ASSERT_TRUE(waitUntil([this] { return m_field.isActiveWindow(); }));
    }

    void focusAnotherProgram() {
        m_other.takeFocus();
        ASSERT_TRUE(waitUntil([] { return QGuiApplication::focusWindow() == nullptr; }));
    }

    [[nodiscard]] xcb_window_t owner() const {
        const auto cookie =
            xcb_get_selection_owner(m_connection->xcb(), m_connection->atom("CLIPBOARD"));
        const XcbReply<xcb_get_selection_owner_reply_t> reply(
            xcb_get_selection_owner_reply(m_connection->xcb(), cookie, nullptr));
        return reply ? reply->owner : xcb_window_t{XCB_WINDOW_NONE};
    }

    [[nodiscard]] bool isQtsSoon() const {
        return waitUntil([this] { return qtx11::owns(owner()); });
    }

    [[nodiscard]] bool isOursSoon() const {
        return waitUntil([this] { return m_connection->owns(owner()); });
    }

    /// What the field shows after a paste, which must not have to wait for anybody.
    [[nodiscard]] QString pasted() {
        QElapsedTimer clock;
        clock.start();
        m_field.clear();
        m_field.paste();
        EXPECT_LT(clock.elapsed(), waitOfQt);
        return m_field.text();
    }

    static inline const PasteboardItem foreignItem{
        {u"STRING"_s, "caf\xE9"_ba, u"STRING"_s},
        {u"text/html"_s, "<i>"_ba, u"text/html"_s},
        {u"odd"_s, noise(8), u"INTEGER"_s, 32},
    };

    ForeignWindow m_other;
    QLineEdit m_field;
};

TEST_F(X11PasteboardQtTest, SavesWhatATextFieldOfOursHasCopied) {
    focusOurField();
    m_field.setText(u"gr\u00FC\u00DF"_s);
    m_field.selectAll();
    m_field.copy();
    const auto item = savedItem();
    focusAnotherProgram();
    m_pasteboard.clear();
    pass(u"12:30"_s);
    restore(item);
    const auto contents = contentsOf();
    EXPECT_EQ(
        typesOf(contents),
        (QStringList{
            u"UTF8_STRING"_s,
            u"text/plain;charset=utf-8"_s,
            u"text/plain"_s,
            u"STRING"_s,
            u"TEXT"_s}));
    EXPECT_EQ(contents.front().bytes, "gr\xC3\xBC\xC3\x9F"_ba);
}

TEST_F(X11PasteboardQtTest, SavesAllFormatsOfQtsClipboard) {
    auto* data = new QMimeData;
    data->setHtml(u"<b>bold</b>"_s);
    data->setData(u"application/x-odd"_s, "odd"_ba);
    QGuiApplication::clipboard()->setMimeData(data);
    const PasteboardItem expected{
        {u"text/html"_s, "<b>bold</b>"_ba, u"text/html"_s},
        {u"application/x-odd"_s, "odd"_ba, u"application/x-odd"_s},
    };
    EXPECT_EQ(savedItem(), expected);
}

TEST_F(X11PasteboardQtTest, QtIsNeverAskedForWhatAnotherProgramHolds) {
    const auto owner = startOwner({{{u"TARGETS"_s, "never seen"_ba, u"TARGETS"_s}, u"silent"_s}});
    ASSERT_FALSE(qtx11::owns(this->owner()));
    QElapsedTimer clock;
    clock.start();
    EXPECT_EQ(qtx11::clipboardItem(QClipboard::Clipboard), std::nullopt);
    EXPECT_LT(clock.elapsed(), waitOfQt);
}

TEST_F(X11PasteboardQtTest, OurTextFieldPastesAtOnceWhatWeCopiedInItsWindow) {
    focusOurField();
    copy(u"12:30"_s);
    ASSERT_TRUE(isQtsSoon());
    EXPECT_EQ(pasted(), u"12:30"_s);
}

TEST_F(X11PasteboardQtTest, OurTextFieldPastesByKeysThatFollowOnTheText) {
    focusOurField();
    pass(u"12:30"_s);
    Keyboard keyboard;
    keyboard.type({KEY_LEFTCTRL, KEY_V});
    QElapsedTimer clock;
    clock.start();
    EXPECT_TRUE(waitUntil([this] { return m_field.text() == u"12:30"_s; }));
    EXPECT_LT(clock.elapsed(), waitOfQt);
}

TEST_F(X11PasteboardQtTest, OurTextFieldPastesAtOnceWhatWeHadRestoredBefore) {
    focusAnotherProgram();
    giveBack(foreignItem);
    focusOurField();
    ASSERT_TRUE(isQtsSoon());
    EXPECT_EQ(pasted(), u"caf\u00E9"_s);
}

TEST_F(X11PasteboardQtTest, WhatWasLentIsServedBitForBitOnceTheFocusIsElsewhere) {
    focusOurField();
    giveBack(foreignItem);
    ASSERT_TRUE(isQtsSoon());
    focusAnotherProgram();
    ASSERT_TRUE(isOursSoon());
    EXPECT_EQ(contentsOf(), foreignItem);
}

TEST_F(X11PasteboardQtTest, WhatIsLentIsSavedBitForBit) {
    focusOurField();
    giveBack(foreignItem);
    ASSERT_TRUE(isQtsSoon());
    EXPECT_EQ(savedItem(), foreignItem);
}

TEST_F(X11PasteboardQtTest, WhatIsLentIsClearedLikeTheRest) {
    focusOurField();
    giveBack(foreignItem);
    ASSERT_TRUE(isQtsSoon());
    m_pasteboard.clear();
    EXPECT_TRUE(waitUntil([this] { return owner() == XCB_WINDOW_NONE; }));
    focusAnotherProgram();
    EXPECT_EQ(saved(), PasteboardContents{});
}

TEST_F(X11PasteboardQtTest, APassingTextStaysASecretWhileItIsLent) {
    focusOurField();
    pass(u"12:30"_s);
    ASSERT_TRUE(isQtsSoon());
    const auto types = typesOf(contentsOf());
    EXPECT_TRUE(types.contains(u"x-kde-passwordManagerHint"_s));
    EXPECT_EQ(types.count(u"UTF8_STRING"_s), 1);
}

TEST_F(X11PasteboardQtTest, AnotherProgramMayTakeWhatIsLent) {
    focusOurField();
    giveBack(foreignItem);
    ASSERT_TRUE(isQtsSoon());
    const auto program = startOwner({textOffer("theirs")});
    focusAnotherProgram();
    EXPECT_EQ(savedItem(), itemOf({textOffer("theirs")}));
}

TEST_F(X11PasteboardQtTest, WhatIsLentIsHandedOverBitForBit) {
    ForeignProgram manager(u"clipboard_manager.py"_s, {{u"answers"_s, true}});
    ASSERT_EQ(manager.nextReport(), u"ready"_s);
    focusOurField();
    giveBack(foreignItem);
    ASSERT_TRUE(isQtsSoon());
    bool isDone = false;
    m_pasteboard.handOver([&isDone] { isDone = true; });
    EXPECT_TRUE(waitUntil([&isDone] { return isDone; }));
    EXPECT_EQ(itemFrom(manager.nextReport()[u"kept"_s]), foreignItem);
}

} // namespace
} // namespace quorvane
