// SPDX-License-Identifier: MIT
#include "PasteboardTest.h"
#include "support/ForeignWindow.h"

namespace quorvane {
namespace {

using namespace Qt::StringLiterals;

/// The window in front pastes from PRIMARY.
class X11PasteboardPrimaryTest : public PasteboardTest {
protected:
    X11PasteboardPrimaryTest() { m_source = PasteSource::Selection; }
};

std::unique_ptr<ForeignProgram> startPrimaryOwner(const std::vector<Offer>& offers) {
    return startOwner(offers, {.selection = primarySelection});
}

TEST_F(X11PasteboardPrimaryTest, ATextForXtermPassesThroughPrimaryWhichComesBack) {
    const std::vector<Offer> marked{textOffer("marked"), {{u"odd"_s, noise(8), u"INTEGER"_s, 32}}};
    const auto owner = startPrimaryOwner(marked);

    const auto contents = saved();
    EXPECT_EQ(contents, (PasteboardContents{{}, itemOf(marked)}));
    m_pasteboard.clear();
    pass(u"12:30"_s);
    ASSERT_FALSE(contentsOf(primarySelection).empty());
    EXPECT_EQ(contentsOf(primarySelection).front().bytes, "12:30"_ba);
    EXPECT_EQ(contentsOf(clipboardSelection).front().bytes, "12:30"_ba);
    restore({}, contents.selection);
    EXPECT_EQ(contentsOf(primarySelection), itemOf(marked));
    EXPECT_FALSE(readAs(u"owned"_s, {}, clipboardSelection).toBool());
}

TEST_F(X11PasteboardPrimaryTest, ATextForAnEditorLeavesPrimaryAlone) {
    const auto owner = startPrimaryOwner({textOffer("marked")});
    m_source = PasteSource::Clipboard;

    EXPECT_EQ(saved().selection, std::nullopt);
    m_pasteboard.clear();
    pass(u"12:30"_s);
    EXPECT_EQ(contentsOf(clipboardSelection).front().bytes, "12:30"_ba);
    m_pasteboard.clear();
    EXPECT_EQ(contentsOf(primarySelection), itemOf({textOffer("marked")}));
}

TEST_F(X11PasteboardPrimaryTest, ACopiedTextLeavesPrimaryAlone) {
    const auto owner = startPrimaryOwner({textOffer("marked")});
    m_pasteboard.clear();
    copy(u"12:30"_s);
    EXPECT_EQ(contentsOf(primarySelection), itemOf({textOffer("marked")}));
}

TEST_F(X11PasteboardPrimaryTest, APrimaryThatWasEmptyIsEmptyAgain) {
    const auto contents = saved();
    EXPECT_EQ(contents.selection, PasteboardItem{});
    pass(u"12:30"_s);
    ASSERT_TRUE(readAs(u"owned"_s, {}, primarySelection).toBool());
    restore({}, contents.selection);
    EXPECT_FALSE(readAs(u"owned"_s, {}, primarySelection).toBool());
}

TEST_F(X11PasteboardPrimaryTest, ClearingDoesNotTouchAPrimaryThatAnotherProgramHasTaken) {
    const ForeignWindow program;
    pass(u"12:30"_s);
    takeSelection(program, XCB_ATOM_PRIMARY);
    m_pasteboard.clear();
    EXPECT_TRUE(waitUntil([] { return !readAs(u"owned"_s, {}, clipboardSelection).toBool(); }));
    EXPECT_TRUE(readAs(u"owned"_s, {}, primarySelection).toBool());
}

TEST_F(X11PasteboardPrimaryTest, ProgramThatReadsBothSelectionsThroughOneWindowGetsAllOfBoth) {
    const PasteboardItem clipboard{{u"big"_s, noise(900'000), u"big"_s}};
    const PasteboardItem primary{{u"big"_s, noise(3'000'000), u"big"_s}};
    pass(u"12:30"_s);
    restore(clipboard, primary);
    const auto received = itemFrom(readAs(u"both"_s, {u"big"_s}));
    ASSERT_EQ(received.size(), 2);
    EXPECT_TRUE(received[0] == clipboard[0]);
    EXPECT_TRUE(received[1] == primary[0]);
}

} // namespace
} // namespace quorvane
