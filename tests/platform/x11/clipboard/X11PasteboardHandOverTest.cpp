// SPDX-License-Identifier: MIT
#include "PasteboardTest.h"

namespace quorvane {
namespace {

using namespace Qt::StringLiterals;

class X11PasteboardHandOverTest : public PasteboardTest {
protected:
    static std::unique_ptr<ForeignProgram> startManager(bool answers) {
        auto manager = std::make_unique<ForeignProgram>(
            u"clipboard_manager.py"_s, QJsonObject{{u"answers"_s, answers}});
        EXPECT_EQ(manager->nextReport(), u"ready"_s);
        return manager;
    }

    void startHandOver() {
        m_pasteboard.handOver([this] { m_isDone = true; });
        EXPECT_FALSE(m_isDone) << "not in a later event-loop iteration";
    }

    /// Without waiting for a limit to pass.
    [[nodiscard]] bool isDoneAtOnce() {
        return waitUntil([this] { return m_isDone; });
    }

    bool m_isDone = false;
};

TEST_F(X11PasteboardHandOverTest, TheManagerKeepsWhatWeOwn) {
    const auto manager = startManager(true);
    const PasteboardItem item{
        {u"UTF8_STRING"_s, "text"_ba, u"UTF8_STRING"_s},
        {u"big"_s, noise(700'000), u"INTEGER"_s, 32},
    };
    giveBack(item);
    startHandOver();
    EXPECT_TRUE(isDoneAtOnce());
    const auto report = manager->nextReport();
    EXPECT_EQ(report[u"target"_s], u"SAVE_TARGETS"_s);
    EXPECT_EQ(report[u"names"_s].toVariant().toStringList(), typesOf(item));
    EXPECT_EQ(itemFrom(report[u"kept"_s]), item);
}

TEST_F(X11PasteboardHandOverTest, WhatHistoriesAreToIgnoreIsNotHandedOver) {
    const auto manager = startManager(true);
    const auto hint = u"x-kde-passwordManagerHint"_s;
    const PasteboardItem password{
        {u"UTF8_STRING"_s, "hunter2"_ba, u"UTF8_STRING"_s}, {hint, "secret"_ba, hint}};
    giveBack(password);
    startHandOver();
    EXPECT_TRUE(isDoneAtOnce());
    EXPECT_EQ(contentsOf(), password);
    EXPECT_EQ(manager->textsSoFar(), QStringList{});
}

TEST_F(X11PasteboardHandOverTest, AManagerThatHangsIsGivenUpAfterASecond) {
    const auto manager = startManager(false);
    copy(u"text"_s);
    startHandOver();
    m_queue.advance(Seconds(0.999));
    EXPECT_FALSE(m_isDone);
    m_queue.advance(Seconds(0.001));
    EXPECT_TRUE(m_isDone);
}

TEST_F(X11PasteboardHandOverTest, WithoutAManagerItIsDoneSoon) {
    copy(u"text"_s);
    startHandOver();
    EXPECT_TRUE(isDoneAtOnce());
}

TEST_F(X11PasteboardHandOverTest, WhatWeDoNotOwnIsNotOursToHandOver) {
    const auto manager = startManager(false);
    const auto owner = startOwner({textOffer("theirs")});
    startHandOver();
    EXPECT_TRUE(isDoneAtOnce());
}

} // namespace
} // namespace quorvane
