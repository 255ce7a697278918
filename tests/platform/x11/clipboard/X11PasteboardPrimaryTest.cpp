// SPDX-License-Identifier: MIT
#include "PasteboardTest.h"
#include "support/ForeignWindow.h"

namespace quorvane {
namespace {

using namespace Qt::StringLiterals;

using X11PasteboardPrimaryTest = PasteboardTest;

std::unique_ptr<ForeignProgram> startPrimaryOwner(const std::vector<Offer>& offers) {
    return startOwner(offers, {.selection = primarySelection});
}

TEST_F(X11PasteboardPrimaryTest, ATextForXtermPassesThroughPrimaryWhichComesBack) {
    const std::vector<Offer> marked{textOffer("marked"), {{u"odd"_s, noise(8), u"INTEGER"_s, 32}}};
    const auto owner = startPrimaryOwner(marked);
    ForeignWindow xterm("xterm", "XTerm");
    xterm.takeFocus();

    const auto contents = saved();
    EXPECT_EQ(contents, (PasteboardContents{{}, itemOf(marked)}));
    m_pasteboard.clear();
    m_pasteboard.setString(u"12:30"_s, TextStay::Passing);
    ASSERT_FALSE(contentsOf(primarySelection).empty());
    EXPECT_EQ(contentsOf(primarySelection).front().bytes, "12:30"_ba);
    EXPECT_EQ(contentsOf(clipboardSelection).front().bytes, "12:30"_ba);
    m_pasteboard.clear();
    m_pasteboard.write({}, contents.selection);
    EXPECT_EQ(contentsOf(primarySelection), itemOf(marked));
    EXPECT_FALSE(readAs(u"owned"_s, {}, clipboardSelection).toBool());
}

TEST_F(X11PasteboardPrimaryTest, ATextForAnEditorLeavesPrimaryAlone) {
    const auto owner = startPrimaryOwner({textOffer("marked")});
    ForeignWindow editor("gedit", "Gedit");
    editor.takeFocus();

    EXPECT_EQ(saved().selection, std::nullopt);
    m_pasteboard.clear();
    m_pasteboard.setString(u"12:30"_s, TextStay::Passing);
    EXPECT_EQ(contentsOf(clipboardSelection).front().bytes, "12:30"_ba);
    m_pasteboard.clear();
    EXPECT_EQ(contentsOf(primarySelection), itemOf({textOffer("marked")}));
}

TEST_F(X11PasteboardPrimaryTest, ACopiedTextLeavesPrimaryAlone) {
    const auto owner = startPrimaryOwner({textOffer("marked")});
    ForeignWindow xterm("xterm", "XTerm");
    xterm.takeFocus();
    m_pasteboard.clear();
    m_pasteboard.setString(u"12:30"_s, TextStay::Lasting);
    EXPECT_EQ(contentsOf(primarySelection), itemOf({textOffer("marked")}));
}

TEST_F(X11PasteboardPrimaryTest, APrimaryThatWasEmptyIsEmptyAgain) {
    ForeignWindow xterm("xterm", "XTerm");
    xterm.takeFocus();
    const auto contents = saved();
    EXPECT_EQ(contents.selection, PasteboardItem{});
    m_pasteboard.setString(u"12:30"_s, TextStay::Passing);
    ASSERT_TRUE(readAs(u"owned"_s, {}, primarySelection).toBool());
    m_pasteboard.clear();
    m_pasteboard.write({}, contents.selection);
    EXPECT_FALSE(readAs(u"owned"_s, {}, primarySelection).toBool());
}

TEST_F(X11PasteboardPrimaryTest, ClearingDoesNotTouchAPrimaryThatAnotherProgramHasTaken) {
    ForeignWindow xterm("xterm", "XTerm");
    xterm.takeFocus();
    m_pasteboard.setString(u"12:30"_s, TextStay::Passing);
    takeSelection(xterm, XCB_ATOM_PRIMARY);
    m_pasteboard.clear();
    EXPECT_TRUE(waitUntil([] { return !readAs(u"owned"_s, {}, clipboardSelection).toBool(); }));
    EXPECT_TRUE(readAs(u"owned"_s, {}, primarySelection).toBool());
}

} // namespace
} // namespace quorvane
