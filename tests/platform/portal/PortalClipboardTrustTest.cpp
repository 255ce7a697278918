// SPDX-License-Identifier: MIT
#include "support/PortalClipboardFixture.h"

#include <gmock/gmock.h>

namespace quorvane {
namespace {

using namespace Qt::StringLiterals;
using End = FakeSharedClipboard::End;
using testing::Contains;
using testing::Each;
using testing::Field;
using testing::SizeIs;

const auto utf8 = u"text/plain;charset=utf-8"_s;
constexpr qsizetype longText = 2'000'000;

/// A portal, and programs behind it, that do what they should not.
class PortalClipboardTrustTest : public PortalClipboardFixture {
protected:
    void SetUp() override {
        PortalClipboardFixture::SetUp();
        ASSERT_TRUE(isShared());
    }

    /// What is saved once the owner's patience has come to an end.
    [[nodiscard]] PasteboardItem cutOff(Seconds patience) {
        startSave();
        EXPECT_TRUE(comesTo([&] { return !shared.reads().isEmpty(); }) && settles());
        EXPECT_FALSE(contents);
        queue.advance(patience);
        EXPECT_TRUE(contents);
        return contents && !contents->items.empty() ? contents->items.front() : PasteboardItem{};
    }
};

TEST_F(PortalClipboardTrustTest, ReadsNoMoreTypesThanALimit) {
    QMap<QString, QByteArray> many;
    for (int i = 0; i < 10'000; ++i)
        many.insert(u"application/x-%1"_s.arg(i), "x");
    copy(many);
    EXPECT_THAT(saved(), SizeIs(DataOffer::mostTypes));
    EXPECT_THAT(shared.reads(), SizeIs(DataOffer::mostTypes));
}

TEST_F(PortalClipboardTrustTest, TakesNoEndlessNames) {
    copy({{u"x/"_s + QString(1'000'000, u'x'), "x"}, {utf8, "noon"}});
    EXPECT_THAT(saved(), SizeIs(1));
    EXPECT_THAT(shared.reads(), Each(utf8));
}

TEST_F(PortalClipboardTrustTest, CutsOffAPipeThatNeverEnds) {
    shared.leavesPipesOpen = true;
    copy({{utf8, "noon"}});
    EXPECT_EQ(cutOff(OfferSave::longestSilence), PasteboardItem{});
}

TEST_F(PortalClipboardTrustTest, CutsOffAPortalThatNeverAnswers) {
    shared.silentAbout = {u"SelectionRead"_s};
    copy({{utf8, "noon"}});
    startSave();
    ASSERT_TRUE(settles());
    queue.run();
    queue.advance(OfferPasteboardSave::longestSave);
    ASSERT_TRUE(contents);
    EXPECT_TRUE(contents->items.empty());
}

TEST_F(PortalClipboardTrustTest, ReadsNothingFromWhatIsNoFile) {
    shared.givesNoFiles = true;
    copy({{utf8, "noon"}});
    EXPECT_EQ(saved(), PasteboardItem{});
}

TEST_F(PortalClipboardTrustTest, ReadsNothingOfWhatIsRefused) {
    shared.refuses = {u"SelectionRead"_s};
    copy({{utf8, "noon"}});
    EXPECT_EQ(saved(), PasteboardItem{});
}

TEST_F(PortalClipboardTrustTest, IgnoresListsOfOtherTypes) {
    copy({{utf8, "noon"}});
    for (const QVariant& odd : {QVariant(7U), QVariant(QVariantMap{{u"a"_s, 1}}), QVariant(false)})
        shared.tellOwner(odd);
    ASSERT_TRUE(settles());
    EXPECT_EQ(saved(), PasteboardItem{});
}

// The default disposition of SIGPIPE would end this program.
TEST_F(PortalClipboardTrustTest, OutlivesReadersThatCloseEarly) {
    ASSERT_EQ(put(QString(longText, u'x')), PutOutcome::Taken);
    for (int i = 0; i < 10; ++i) {
        const auto serial = shared.paste(utf8);
        ASSERT_TRUE(comesTo([&] { return shared.pasted(serial).has_value(); }));
        shared.stopPasting(serial);
    }
    ASSERT_TRUE(comesTo([&] { return shared.ends().size() == 10; }));
    EXPECT_THAT(shared.ends(), Each(Field(&End::isWhole, false)));
    EXPECT_EQ(pasted(utf8).value_or(QByteArray()).size(), longText);
}

TEST_F(PortalClipboardTrustTest, GivesUpReadersThatNeverRead) {
    ASSERT_EQ(put(QString(longText, u'x')), PutOutcome::Taken);
    const auto serial = shared.paste(utf8);
    ASSERT_TRUE(comesTo([&] { return shared.pasted(serial).has_value(); }) && settles());
    queue.advance(PipeWriting::longestSilence);
    ASSERT_TRUE(comesTo([&] { return !shared.ends().isEmpty(); }));
    EXPECT_THAT(shared.ends(), Contains(End{serial, false}));
}

TEST_F(PortalClipboardTrustTest, AsksForNoMoreFilesThanALimit) {
    shared.silentAbout = {u"SelectionWrite"_s};
    ASSERT_EQ(put(u"noon"_s), PutOutcome::Taken);
    for (std::size_t i = 0; i < PipeWriting::mostTransfers + 10; ++i)
        shared.paste(utf8);
    ASSERT_TRUE(comesTo([&] { return shared.ends().size() == 10; }));
    EXPECT_THAT(shared.ends(), Each(Field(&End::isWhole, false)));
}

TEST_F(PortalClipboardTrustTest, GivesNothingForATypeThatItHasNot) {
    ASSERT_EQ(put(u"noon"_s), PutOutcome::Taken);
    EXPECT_EQ(pasted(u"image/png"_s), std::nullopt);
    EXPECT_THAT(shared.ends(), Contains(End{1, false}));
}

TEST_F(PortalClipboardTrustTest, GivesNothingToAnotherSession) {
    ASSERT_EQ(put(u"noon"_s), PutOutcome::Taken);
    shared.session.append(u"other"_s);
    const auto serial = shared.paste(utf8);
    ASSERT_TRUE(settles());
    EXPECT_EQ(shared.pasted(serial), std::nullopt);
}

} // namespace
} // namespace quorvane
