// SPDX-License-Identifier: MIT
#include "PasteboardTest.h"

#include <sys/socket.h>

namespace quorvane {
namespace {

using namespace Qt::StringLiterals;

const auto hint = u"x-kde-passwordManagerHint"_s;
const auto text = u"12:30"_s;

// The longest that another owner is waited for.
constexpr Seconds longestQuestion{0.3};

/// A text that has passed through both selections, one of which the test looks at.
class X11PasteboardRestoreTest : public PasteboardTest,
                                 public testing::WithParamInterface<QString> {
protected:
    X11PasteboardRestoreTest() {
        m_source = PasteSource::Selection;
        pass(text);
    }

    void restoreBoth(const PasteboardItem& item) { restore(item, item); }

    [[nodiscard]] static PasteboardItem contents() { return contentsOf(GetParam()); }

    [[nodiscard]] static std::unique_ptr<ForeignProgram>
    startOwnerHere(const std::vector<Offer>& offers) {
        return startOwner(offers, {.selection = GetParam()});
    }

    [[nodiscard]] xcb_atom_t selection() const { return m_connection->atom(GetParam()); }

    /// Of what a save finds in the selection.
    [[nodiscard]] bool isPassing(const PasteboardContents& found) const {
        return GetParam() == primarySelection ? found.selectionIsPassing : found.isPassing;
    }

    const PasteboardItem before{{u"UTF8_STRING"_s, "mine"_ba, u"UTF8_STRING"_s}};
};

INSTANTIATE_TEST_SUITE_P(
    ,
    X11PasteboardRestoreTest,
    testing::Values(clipboardSelection, primarySelection),
    [](const auto& one) { return one.param.toStdString(); });

TEST_P(X11PasteboardRestoreTest, TextThatIsStillOursIsReplacedAtOnce) {
    restoreBoth(before);
    EXPECT_FALSE(m_isRestored) << "not in a later event-loop iteration";
    EXPECT_EQ(contents(), before);
    EXPECT_TRUE(isRestoredSoon());
}

TEST_P(X11PasteboardRestoreTest, WhatWasEmptyIsEmptyAgain) {
    restoreBoth({});
    EXPECT_FALSE(readAs(u"owned"_s, {}, GetParam()).toBool());
}

TEST_P(X11PasteboardRestoreTest, NewerCopyOfAnotherProgramStays) {
    const auto owner = startOwnerHere({textOffer("newer")});
    restoreBoth(before);
    EXPECT_TRUE(isRestoredSoon());
    EXPECT_EQ(contents(), itemOf({textOffer("newer")}));
    restoreBoth(before);
    EXPECT_TRUE(isRestoredSoon());
    EXPECT_EQ(contents(), itemOf({textOffer("newer")})) << "a restore is not for good";
}

TEST_P(X11PasteboardRestoreTest, OwnerIsAskedForItsTextOnce) {
    const auto owner = startOwnerHere({textOffer("newer")});
    restoreBoth(before);
    EXPECT_TRUE(isRestoredSoon());
    EXPECT_EQ(owner->textsSoFar(), QStringList{u"UTF8_STRING"_s});
}

TEST_P(X11PasteboardRestoreTest, LongerTextThatBeginsLikeOursStays) {
    const auto owner = startOwnerHere({textOffer("12:30 and more")});
    restoreBoth(before);
    EXPECT_TRUE(isRestoredSoon());
    EXPECT_EQ(contents(), itemOf({textOffer("12:30 and more")}));
}

TEST_P(X11PasteboardRestoreTest, CopyOfAManagerIsReplaced) {
    const auto manager = startOwnerHere({textOffer(text.toUtf8())});
    restoreBoth(before);
    EXPECT_TRUE(isRestoredSoon());
    EXPECT_EQ(contents(), before);
}

TEST_P(X11PasteboardRestoreTest, ContentsOfAnOwnerThatIsSilentStay) {
    const ForeignWindow taciturn;
    takeSelection(taciturn, selection());
    restoreBoth(before);
    m_queue.advance(longestQuestion - Seconds(0.001));
    EXPECT_FALSE(m_isRestored);
    m_queue.advance(Seconds(0.001));
    EXPECT_TRUE(isRestoredSoon());
    EXPECT_FALSE(m_connection->owns(m_connection->selectionOwner(selection())));
}

TEST_P(X11PasteboardRestoreTest, OwnerThatComesWhileAManagerIsAskedStays) {
    const Offer slow{{u"UTF8_STRING"_s, text.toUtf8(), u"UTF8_STRING"_s}, u"dripping"_s};
    const auto manager = startOwnerHere({slow});
    restoreBoth(before);
    ASSERT_EQ(manager->nextReport(), u"UTF8_STRING"_s);
    ASSERT_EQ(manager->nextReport(), u"taken"_s);
    const auto owner = startOwnerHere({textOffer("newest")});
    for (int i = 0; i < 2; ++i)
        manager->proceed();
    EXPECT_TRUE(isRestoredSoon());
    EXPECT_EQ(contents(), itemOf({textOffer("newest")}));
}

TEST_P(X11PasteboardRestoreTest, RestoreThatIsGivenUpLeavesTheCopyOfTheManager) {
    const auto manager = startOwnerHere({textOffer(text.toUtf8())});
    restoreBoth(before);
    m_restoring.reset();
    m_source = PasteSource::Selection;
    EXPECT_TRUE(isPassing(saved())) << "a later insertion takes the restore over";
    EXPECT_FALSE(m_isRestored);
    restoreBoth(before);
    EXPECT_TRUE(isRestoredSoon());
    EXPECT_EQ(contents(), before);
}

TEST_P(X11PasteboardRestoreTest, SaveKnowsTheTextThatIsPassing) {
    EXPECT_TRUE(isPassing(saved()));
    restoreBoth(before);
    EXPECT_FALSE(isPassing(saved()));
    pass(text);
    const auto manager = startOwnerHere({textOffer(text.toUtf8())});
    EXPECT_TRUE(isPassing(saved()));
    const auto owner = startOwnerHere({textOffer("newer")});
    EXPECT_FALSE(isPassing(saved()));
}

TEST_P(X11PasteboardRestoreTest, HintGoesWithTheText) {
    ASSERT_TRUE(typesOf(contents()).contains(hint));
    restoreBoth(before);
    EXPECT_FALSE(typesOf(contents()).contains(hint));
}

TEST_P(X11PasteboardRestoreTest, PasswordComesBackWithItsHint) {
    const PasteboardItem password{
        {u"UTF8_STRING"_s, "hunter2"_ba, u"UTF8_STRING"_s}, {hint, "secret"_ba, hint}};
    restoreBoth(password);
    EXPECT_EQ(contents(), password);
}

using X11PasteboardCopyTest = PasteboardTest;

TEST_F(X11PasteboardCopyTest, CopyEndsTheRestoreForGood) {
    pass(text);
    copy(text);
    EXPECT_FALSE(saved().isPassing);
    restore({{u"UTF8_STRING"_s, "mine"_ba, u"UTF8_STRING"_s}});
    EXPECT_TRUE(isRestoredSoon());
    EXPECT_EQ(contentsOf().front().bytes, text.toUtf8());
    EXPECT_FALSE(typesOf(contentsOf()).contains(hint));
}

TEST_F(X11PasteboardCopyTest, CopyLeavesWhatTheUserHasMarkedToItsRestore) {
    const PasteboardItem marked{{u"UTF8_STRING"_s, "marked"_ba, u"UTF8_STRING"_s}};
    m_source = PasteSource::Selection;
    pass(text);
    copy(u"copied"_s);
    restore({}, marked);
    EXPECT_EQ(contentsOf(primarySelection), marked);
    EXPECT_EQ(contentsOf().front().bytes, "copied"_ba);
}

TEST_F(X11PasteboardCopyTest, TellsWhenTheServerIsGone) {
    shutdown(xcb_get_file_descriptor(m_connection->xcb()), SHUT_RDWR);
    for (const auto stay : {TextStay::Lasting, TextStay::Passing}) {
        EXPECT_EQ(m_pasteboard.setString(text, stay, PasteSource::Clipboard), PutOutcome::Refused);
    }
}

} // namespace
} // namespace quorvane
