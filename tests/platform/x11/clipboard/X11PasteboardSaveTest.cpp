// SPDX-License-Identifier: MIT
#include "PasteboardTest.h"
#include "support/ForeignWindow.h"

#include <algorithm>

namespace quorvane {
namespace {

using namespace Qt::StringLiterals;

using X11PasteboardSaveTest = PasteboardTest;

// The longest that a save waits for an owner's next step.
constexpr Seconds silence{0.3};

Offer silentOffer(const QString& target) {
    return {{target, "never seen"_ba, target}, u"silent"_s};
}

PasteboardContents contentsWith(const Offer& offer) {
    return {{itemOf({offer})}, std::nullopt};
}

/// Waits until an owner has told of these, while the event loop runs.
bool reports(ForeignProgram& owner, const QStringList& expected) {
    return std::ranges::all_of(
        expected, [&owner](const QString& text) { return owner.nextReport() == text; });
}

/// Properties that hold an answer, on whatever window.
int answersLeftOnTheServer() {
    const ForeignWindow observer;
    auto* xcb = observer.connection();
    const XcbReply<xcb_query_tree_reply_t> tree(
        xcb_query_tree_reply(xcb, xcb_query_tree(xcb, observer.screen().root), nullptr));
    int count = 0;
    for (int i = 0; i < xcb_query_tree_children_length(tree.get()); ++i) {
        const auto window = xcb_query_tree_children(tree.get())[i];
        const XcbReply<xcb_list_properties_reply_t> list(
            xcb_list_properties_reply(xcb, xcb_list_properties(xcb, window), nullptr));
        for (int j = 0; list && j < xcb_list_properties_atoms_length(list.get()); ++j) {
            const auto atom = xcb_list_properties_atoms(list.get())[j];
            const XcbReply<xcb_get_atom_name_reply_t> name(
                xcb_get_atom_name_reply(xcb, xcb_get_atom_name(xcb, atom), nullptr));
            if (name && QByteArrayView(xcb_get_atom_name_name(name.get()), name->name_len)
                            .startsWith("QUORVANE_ANSWER"))
                ++count;
        }
    }
    return count;
}

TEST_F(X11PasteboardSaveTest, WithoutAnOwnerThereIsNothingToSave) {
    EXPECT_EQ(saved(), PasteboardContents{});
}

TEST_F(X11PasteboardSaveTest, CallsBackInALaterIteration) {
    bool isDone = false;
    m_pasteboard.save(m_source, [&isDone](const PasteboardContents&) { isDone = true; });
    EXPECT_FALSE(isDone);
    EXPECT_TRUE(waitUntil([&isDone] { return isDone; }));
}

TEST_F(X11PasteboardSaveTest, KeepsTheOwnersOrderAndReadsTextFirst) {
    const std::vector<Offer> offers{
        {{u"image/png"_s, "png"_ba, u"image/png"_s}},
        {{u"odd/kind"_s, "odd"_ba, u"odd/kind"_s}},
        {{u"text/html"_s, "<b>"_ba, u"text/html"_s}},
        {{u"text/plain"_s, "plain"_ba, u"text/plain"_s}},
        {{u"UTF8_STRING"_s, "utf8"_ba, u"UTF8_STRING"_s}},
    };
    const auto owner = startOwner(offers);
    EXPECT_EQ(savedItem(), itemOf(offers));
    EXPECT_EQ(
        owner->textsSoFar(),
        (QStringList{
            u"TARGETS"_s,
            u"UTF8_STRING"_s,
            u"text/plain"_s,
            u"text/html"_s,
            u"image/png"_s,
            u"odd/kind"_s}));
}

TEST_F(X11PasteboardSaveTest, AsksForNoneOfTheTargetsThatAreNoContents) {
    const auto owner = startOwner(
        {textOffer("text")},
        {.names = {
             u"TARGETS"_s,
             u"TIMESTAMP"_s,
             u"MULTIPLE"_s,
             u"SAVE_TARGETS"_s,
             u"DELETE"_s,
             u"INSERT_SELECTION"_s,
             u"INSERT_PROPERTY"_s,
             u"UTF8_STRING"_s}});
    EXPECT_EQ(savedItem(), itemOf({textOffer("text")}));
    EXPECT_EQ(owner->textsSoFar(), (QStringList{u"TARGETS"_s, u"UTF8_STRING"_s}));
}

TEST_F(X11PasteboardSaveTest, DropsATargetWhoseDataCannotBeRead) {
    const std::vector<Offer> offers{
        {{u"a"_s, "a"_ba, u"a"_s}},
        {{u"b"_s, "b"_ba, u"b"_s}, u"refusing"_s},
        {{u"c"_s, "c"_ba, u"c"_s}},
    };
    const auto owner = startOwner(offers);
    EXPECT_EQ(savedItem(), itemOf({offers[0], offers[2]}));
}

TEST_F(X11PasteboardSaveTest, AsksForTextWhereTheOwnerCannotTellItsTargets) {
    const auto owner = startOwner({textOffer("old")}, {.tellsTargets = false});
    EXPECT_EQ(savedItem(), itemOf({textOffer("old")}));
}

TEST_F(X11PasteboardSaveTest, CutsAHungOwnerOffWhileTheEventLoopRuns) {
    const auto hung = startOwner({silentOffer(u"TARGETS"_s)});
    startSave();
    EXPECT_EQ(hung->nextReport(), u"TARGETS"_s);
    EXPECT_EQ(outcomeAfter(silence), PasteboardContents{});
}

TEST_F(X11PasteboardSaveTest, HandsOverWhatWasReadBeforeTheOwnerHung) {
    const auto owner = startOwner({silentOffer(u"image/bmp"_s), textOffer("text")});
    startSave();
    EXPECT_TRUE(reports(*owner, {u"TARGETS"_s, u"UTF8_STRING"_s, u"image/bmp"_s}));
    EXPECT_EQ(outcomeAfter(silence), contentsWith(textOffer("text")));
}

TEST_F(X11PasteboardSaveTest, WaitsForAnOwnerThatIsSlowButNotSilent) {
    const Offer slow{{u"drip"_s, noise(24), u"drip"_s}, u"dripping"_s};
    const auto owner = startOwner({slow});
    startSave();
    EXPECT_TRUE(reports(*owner, {u"TARGETS"_s, u"drip"_s}));
    // Three increments, and the empty one at the end.
    for (int i = 0; i < 4; ++i) {
        ASSERT_EQ(owner->nextReport(), u"taken"_s);
        m_queue.advance(silence * 0.8);
        EXPECT_FALSE(m_saved.has_value());
        owner->proceed();
    }
    EXPECT_EQ(outcome(), contentsWith(slow));
}

TEST_F(X11PasteboardSaveTest, EndsAfterASecondThoughTheOwnerStillDrips) {
    const Offer endless{{u"drip"_s, noise(800), u"drip"_s}, u"dripping"_s};
    const auto owner = startOwner({endless, textOffer("text")});
    startSave();
    EXPECT_TRUE(reports(*owner, {u"TARGETS"_s, u"UTF8_STRING"_s, u"drip"_s}));
    for (int i = 0; i < 4; ++i) {
        ASSERT_EQ(owner->nextReport(), u"taken"_s);
        m_queue.advance(Seconds(0.2));
        owner->proceed();
    }
    ASSERT_EQ(owner->nextReport(), u"taken"_s);
    EXPECT_EQ(outcomeAfter(Seconds(0.2)), contentsWith(textOffer("text")));
}

TEST_F(X11PasteboardSaveTest, OutlivesAnOwnerThatDiesAmidItsData) {
    const Offer torn{{u"image/bmp"_s, noise(500'000), u"image/bmp"_s}, u"dying"_s};
    const auto owner = startOwner({torn, textOffer("text")});
    startSave();
    ASSERT_TRUE(waitUntil([&owner] { return !owner->isRunning(); }));
    m_queue.advance(silence);
    EXPECT_EQ(outcome(), contentsWith(textOffer("text")));
}

TEST_F(X11PasteboardSaveTest, ALateAnswerIsThrownAwayAndHarmsNobody) {
    const Offer late{{u"late"_s, "late"_ba, u"late"_s}, u"late"_s};
    const auto owner = startOwner({late});
    startSave();
    EXPECT_TRUE(reports(*owner, {u"TARGETS"_s, u"late"_s}));
    EXPECT_EQ(outcomeAfter(silence), PasteboardContents{});
    // It answers one after the other: the late answer is out when this one has come.
    EXPECT_EQ(contentsOf(), itemOf({late}));
    EXPECT_TRUE(waitUntil([] { return answersLeftOnTheServer() == 0; }));
}

TEST_F(X11PasteboardSaveTest, EachOfSeveralSavesAtOnceGetsItsOwnResult) {
    const std::vector<Offer> offers{
        textOffer("text"), {{u"big"_s, noise(600'000), u"big"_s}, u"incremental"_s}};
    const auto owner = startOwner(offers);
    std::vector<PasteboardContents> results;
    for (int i = 0; i < 3; ++i)
        m_pasteboard.save(
            m_source, [&results](auto contents) { results.push_back(std::move(contents)); });
    ASSERT_TRUE(waitUntil([&results] { return results.size() == 3; }));
    const PasteboardContents expected{{itemOf(offers)}, std::nullopt};
    EXPECT_EQ(results, std::vector(3, expected));
}

TEST_F(X11PasteboardSaveTest, GivesOutWhatItOwnsItselfWithoutAsking) {
    const PasteboardItem item{{u"own"_s, noise(500'000), u"INTEGER"_s, 32}};
    giveBack(item);
    EXPECT_EQ(savedItem(), item);
}

TEST_F(X11PasteboardSaveTest, AsksAnOwnerWhomWeHaveNotNoticedYet) {
    copy(u"ours"_s);
    ForeignWindow taciturn;
    takeSelection(taciturn, m_connection->atom("CLIPBOARD"));
    startSave();
    EXPECT_EQ(outcomeAfter(silence), PasteboardContents{});
}

TEST_F(X11PasteboardSaveTest, FindsWhatWeHaveCopiedWhileTheOwnerBeforeWasSilent) {
    const auto hung = startOwner({silentOffer(u"TARGETS"_s)});
    startSave();
    EXPECT_EQ(hung->nextReport(), u"TARGETS"_s);
    copy(u"ours"_s);
    m_queue.advance(silence);
    const auto contents = outcome();
    ASSERT_EQ(contents.items.size(), 1);
    EXPECT_EQ(contents.items.front().front().bytes, "ours"_ba);
}

TEST_F(X11PasteboardSaveTest, FindsWhatAnotherProgramHasCopiedWhileTheOwnerBeforeWasSilent) {
    const auto hung = startOwner({silentOffer(u"TARGETS"_s)});
    startSave();
    EXPECT_EQ(hung->nextReport(), u"TARGETS"_s);
    const auto next = startOwner({textOffer("newer")});
    m_queue.advance(silence);
    EXPECT_EQ(outcome(), contentsWith(textOffer("newer")));
}

TEST_F(X11PasteboardSaveTest, ASaveThatIsStillUnderWayEndsWithThePasteboard) {
    const auto owner = startOwner({silentOffer(u"TARGETS"_s)});
    bool isDone = false;
    {
        X11Pasteboard shortLived(m_connection, m_queue);
        shortLived.save(m_source, [&isDone](const PasteboardContents&) { isDone = true; });
    }
    startSave();
    EXPECT_EQ(outcomeAfter(silence), PasteboardContents{});
    EXPECT_FALSE(isDone);
}

} // namespace
} // namespace quorvane
