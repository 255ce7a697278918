// SPDX-License-Identifier: MIT
#include "PasteboardTest.h"

#include <QElapsedTimer>

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

    /// Milliseconds until the pasteboard was done.
    qint64 handOver() {
        QElapsedTimer clock;
        clock.start();
        bool isDone = false;
        m_pasteboard.handOver([&isDone] { isDone = true; });
        EXPECT_FALSE(isDone) << "not in a later event-loop iteration";
        EXPECT_TRUE(waitUntil([&isDone] { return isDone; }));
        return clock.elapsed();
    }
};

TEST_F(X11PasteboardHandOverTest, TheManagerKeepsWhatWeOwn) {
    const auto manager = startManager(true);
    const PasteboardItem item{
        {u"UTF8_STRING"_s, "text"_ba, u"UTF8_STRING"_s},
        {u"big"_s, noise(700'000), u"INTEGER"_s, 32},
    };
    m_pasteboard.write(item, std::nullopt);
    handOver();
    const auto report = manager->nextReport();
    EXPECT_EQ(report[u"target"_s], u"SAVE_TARGETS"_s);
    EXPECT_EQ(report[u"names"_s].toVariant().toStringList(), typesOf(item));
    EXPECT_EQ(itemFrom(report[u"kept"_s]), item);
}

TEST_F(X11PasteboardHandOverTest, AManagerThatHangsIsGivenUpAfterASecond) {
    const auto manager = startManager(false);
    m_pasteboard.setString(u"text"_s, TextStay::Lasting);
    const auto elapsed = handOver();
    EXPECT_GE(elapsed, 1000);
    EXPECT_LT(elapsed, 1150);
}

TEST_F(X11PasteboardHandOverTest, WithoutAManagerItIsDoneSoon) {
    m_pasteboard.setString(u"text"_s, TextStay::Lasting);
    EXPECT_LT(handOver(), 100);
}

TEST_F(X11PasteboardHandOverTest, WhatWeDoNotOwnIsNotOursToHandOver) {
    const auto manager = startManager(false);
    const auto owner = startOwner({textOffer("theirs")});
    EXPECT_LT(handOver(), 100);
}

} // namespace
} // namespace quorvane
