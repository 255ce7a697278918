// SPDX-License-Identifier: MIT
#include <platform_qt/QtPasteboard.h>
#include <testing/FakePasteboard.h>
#include <testing/VirtualMainQueue.h>

#include <QClipboard>
#include <QGuiApplication>
#include <QMimeData>
#include <QTest>
#include <QWidget>
#include <gtest/gtest.h>

namespace quorvane {
namespace {

using namespace Qt::StringLiterals;

class QtPasteboardTest : public testing::Test {
protected:
    VirtualMainQueue queue;
    QtPasteboard pasteboard{queue, QtPasteboard::Access::Always};
    QClipboard& clipboard = *QGuiApplication::clipboard();

    QtPasteboardTest() { clipboard.setText(u"before"_s); }

    std::optional<QString> readText(PasteSource source = PasteSource::Clipboard) {
        std::optional<QString> found;
        const auto reading =
            pasteboard.readText(source, [&](auto text) { found = std::move(text); });
        queue.run();
        return found;
    }
};

TEST_F(QtPasteboardTest, TextIsOnTheClipboard) {
    EXPECT_EQ(
        pasteboard.setString(u"noon"_s, TextStay::Lasting, PasteSource::Clipboard),
        PutOutcome::Taken);
    EXPECT_EQ(clipboard.text(), u"noon"_s);
    EXPECT_FALSE(clipboard.mimeData()->hasFormat(u"x-kde-passwordManagerHint"_s));
}

TEST_F(QtPasteboardTest, PassingTextAsksHistoriesToLookAway) {
    EXPECT_EQ(
        pasteboard.setString(u"noon"_s, TextStay::Passing, PasteSource::Clipboard),
        PutOutcome::Taken);
    EXPECT_EQ(clipboard.mimeData()->data(u"x-kde-passwordManagerHint"_s), "secret");
}

TEST_F(QtPasteboardTest, RefusesWithoutTheFocusWhereThatIsNeeded) {
    QtPasteboard onWayland(queue, QtPasteboard::Access::WithFocus);
    EXPECT_EQ(
        onWayland.setString(u"noon"_s, TextStay::Lasting, PasteSource::Clipboard),
        PutOutcome::Refused);
    EXPECT_EQ(clipboard.text(), u"before"_s);
    QWidget window;
    window.show();
    window.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    EXPECT_EQ(
        onWayland.setString(u"noon"_s, TextStay::Lasting, PasteSource::Clipboard),
        PutOutcome::Taken);
}

TEST_F(QtPasteboardTest, ReadsTheText) {
    EXPECT_EQ(readText(), u"before"_s);
    clipboard.clear();
    EXPECT_EQ(readText(), std::nullopt);
    clipboard.setText(QString(Pasteboard::longestText + 1, u'x'));
    EXPECT_EQ(readText(), std::nullopt);
}

TEST_F(QtPasteboardTest, HasNoSelectionWhereTheDisplayHasNone) {
    ASSERT_FALSE(clipboard.supportsSelection());
    EXPECT_EQ(readText(PasteSource::Selection), std::nullopt);
}

TEST_F(QtPasteboardTest, ReadsNothingThatIsDragged) {
    std::optional<QString> found = u"unanswered"_s;
    const auto reading = pasteboard.readDraggedText([&](auto text) { found = std::move(text); });
    queue.run();
    EXPECT_EQ(found, std::nullopt);
}

TEST_F(QtPasteboardTest, ReadingThatIsGivenUpNeverAnswers) {
    bool answered = false;
    pasteboard.readText(PasteSource::Clipboard, [&](const auto&) { answered = true; }).reset();
    queue.run();
    EXPECT_FALSE(answered);
}

TEST_F(QtPasteboardTest, SavesAndRestoresNothing) {
    bool restored = false;
    auto saved = plainText(u"unanswered"_s);
    pasteboard.save(PasteSource::Clipboard, [&](auto contents) { saved = std::move(contents); });
    const auto request = pasteboard.restore(
        plainText(u"saved"_s).items.front(), std::nullopt, [&] { restored = true; });
    queue.run();
    EXPECT_EQ(saved, PasteboardContents{});
    EXPECT_TRUE(restored);
    EXPECT_EQ(clipboard.text(), u"before"_s);
}

TEST_F(QtPasteboardTest, LeavesItsContentsToQtAtTheEnd) {
    bool done = false;
    pasteboard.handOver([&] { done = true; });
    EXPECT_FALSE(done);
    queue.run();
    EXPECT_TRUE(done);
}

} // namespace
} // namespace quorvane
