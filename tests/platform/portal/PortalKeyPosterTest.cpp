// SPDX-License-Identifier: MIT
#include "support/PortalFixture.h"

#include <platform_portal/PortalKeyPoster.h>
#include <testing/FakeKeyboardLayout.h>

#include <gmock/gmock.h>

namespace quorvane {
namespace {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using Key = FakeRemoteDesktop::Key;
using testing::ElementsAre;

// linux/input-event-codes.h
constexpr int leftControl = 29;
constexpr int leftShift = 42;
constexpr int v = 47;
constexpr int insert = 110;

constexpr PasteTarget olderPaste{PasteKeys::ShiftInsert, PasteSource::Selection};

class PortalKeyPosterTest : public PortalFixture {
protected:
    /// Consent is given, and the key that wakes the keyboard up has come.
    void SetUp() override {
        portal.appear();
        startProgram();
        poster =
            std::make_unique<PortalKeyPoster>(keyboard, queue, layout, [this] { return isHeld; });
        ASSERT_TRUE(opensTo(TypingRight::Granted));
        ASSERT_TRUE(comesTo([&] { return portal.keys().size() == 2; }));
        ASSERT_TRUE(settles());
    }

    void paste(const PasteTarget& target) {
        poster->paste(target, [this](PostOutcome outcome) { outcomes.push_back(outcome); });
    }

    /// Those since the keyboard woke up.
    [[nodiscard]] QList<Key> keys() const { return portal.keys().sliced(2); }

    [[nodiscard]] bool hasSent(qsizetype count) {
        return comesTo([&] { return keys().size() == count; }) && settles();
    }

    /// The whole paste, key by key.
    [[nodiscard]] bool finishes(qsizetype count) {
        for (qsizetype sent = 1; sent <= count; ++sent) {
            if (!hasSent(sent))
                return false;
            queue.advance(PortalKeyPoster::gap);
        }
        return comesTo([&] { return !outcomes.empty(); });
    }

    FakeKeyboardLayout layout;
    bool isHeld = false;
    std::vector<PostOutcome> outcomes;
    std::unique_ptr<PortalKeyPoster> poster;
};

TEST_F(PortalKeyPosterTest, PastesByTheKeysOfOldFromClipboardAndSelection) {
    EXPECT_EQ(poster->pasteTarget(), olderPaste);
    paste(olderPaste);
    ASSERT_TRUE(finishes(4));
    EXPECT_THAT(outcomes, ElementsAre(PostOutcome::Posted));
    EXPECT_THAT(
        keys(), ElementsAre(Key{leftShift, 1}, Key{insert, 1}, Key{insert, 0}, Key{leftShift, 0}));
}

TEST_F(PortalKeyPosterTest, LeavesAGapBeforeEachKey) {
    paste(olderPaste);
    for (qsizetype sent = 1; sent <= 4; ++sent) {
        ASSERT_TRUE(hasSent(sent));
        queue.advance(15ms);
        ASSERT_TRUE(settles());
        EXPECT_EQ(keys().size(), sent);
        EXPECT_EQ(outcomes.empty(), sent < 4);
        queue.advance(1ms);
    }
}

TEST_F(PortalKeyPosterTest, PressesWhatItIsAskedFor) {
    paste({PasteKeys::ControlV, PasteSource::Clipboard});
    ASSERT_TRUE(finishes(4));
    EXPECT_THAT(
        keys(), ElementsAre(Key{leftControl, 1}, Key{v, 1}, Key{v, 0}, Key{leftControl, 0}));
}

TEST_F(PortalKeyPosterTest, PressesThreeKeysInOrder) {
    paste({PasteKeys::ControlShiftV, PasteSource::Clipboard});
    ASSERT_TRUE(finishes(6));
    EXPECT_THAT(
        keys(),
        ElementsAre(
            Key{leftControl, 1},
            Key{leftShift, 1},
            Key{v, 1},
            Key{v, 0},
            Key{leftShift, 0},
            Key{leftControl, 0}));
}

TEST_F(PortalKeyPosterTest, HasNoKeysWithoutTheConsent) {
    portal.closeSession();
    ASSERT_TRUE(comesTo(TypingRight::Stopped));
    EXPECT_EQ(poster->pasteTarget(), std::nullopt);
    paste(olderPaste);
    EXPECT_THAT(outcomes, ElementsAre(PostOutcome::Unavailable));
    EXPECT_TRUE(keys().isEmpty());
}

TEST_F(PortalKeyPosterTest, StopsWhereAKeyIsRefused) {
    portal.refuses = {u"NotifyKeyboardKeycode"_s};
    paste(olderPaste);
    ASSERT_TRUE(comesTo(TypingRight::Stopped));
    EXPECT_THAT(outcomes, ElementsAre(PostOutcome::Unavailable));
}

TEST_F(PortalKeyPosterTest, ReleasesWhatIsDownWhereALaterKeyIsNotAnswered) {
    paste(olderPaste);
    ASSERT_TRUE(hasSent(1));
    portal.silentAbout = {u"NotifyKeyboardKeycode"_s};
    queue.advance(PortalKeyPoster::gap);
    ASSERT_TRUE(hasSent(2));
    queue.advance(PortalKeyPoster::patience);
    EXPECT_THAT(outcomes, ElementsAre(PostOutcome::Unavailable));
    ASSERT_TRUE(hasSent(4));
    EXPECT_THAT(
        keys(), ElementsAre(Key{leftShift, 1}, Key{insert, 1}, Key{insert, 0}, Key{leftShift, 0}));
    EXPECT_TRUE(comesTo(TypingRight::Stopped));
    EXPECT_EQ(outcomes.size(), 1U);
}

TEST_F(PortalKeyPosterTest, ReleasesWhatIsDownWhenItGoes) {
    paste(olderPaste);
    ASSERT_TRUE(hasSent(1));
    poster.reset();
    ASSERT_TRUE(hasSent(2));
    EXPECT_THAT(keys(), ElementsAre(Key{leftShift, 1}, Key{leftShift, 0}));
    EXPECT_TRUE(outcomes.empty());
}

TEST_F(PortalKeyPosterTest, ConsentTakenBackInTheMiddleIsToldAtOnce) {
    paste(olderPaste);
    ASSERT_TRUE(hasSent(1));
    portal.closeSession();
    ASSERT_TRUE(comesTo(TypingRight::Stopped));
    queue.advance(PortalKeyPoster::gap);
    EXPECT_THAT(outcomes, ElementsAre(PostOutcome::Unavailable));
}

TEST_F(PortalKeyPosterTest, WaitsUntilTheUserLetsGoOfModifiers) {
    isHeld = true;
    paste(olderPaste);
    queue.advance(300ms);
    ASSERT_TRUE(settles());
    EXPECT_TRUE(keys().isEmpty());
    isHeld = false;
    queue.advance(PortalKeyPoster::gap);
    EXPECT_TRUE(finishes(4));
}

TEST_F(PortalKeyPosterTest, WaitsForHeldModifiersWithinBounds) {
    isHeld = true;
    paste(olderPaste);
    queue.advance(600ms);
    EXPECT_TRUE(hasSent(1));
}

} // namespace
} // namespace quorvane
