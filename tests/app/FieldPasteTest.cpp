// SPDX-License-Identifier: MIT
#include "FieldPaste.h"

#include <testing/FakePasteboard.h>
#include <testing/VirtualMainQueue.h>

#include <gtest/gtest.h>

namespace quorvane {
namespace {

using namespace Qt::StringLiterals;

class FieldPasteTest : public testing::Test {
protected:
    VirtualMainQueue queue;
    CallLog log{queue};
    FakePasteboard pasteboard{log, queue};
    PasteReader reader = fieldPaste(pasteboard);

    FieldPasteTest() {
        auto contents = plainText(u"copied"_s);
        contents.selection = plainText(u"marked"_s).items.front();
        pasteboard.setContents(contents);
        pasteboard.setDragged(u"dragged"_s);
    }

    std::optional<QString> read(PasteFrom from) {
        std::optional<QString> read;
        const auto reading = reader(from, [&](const QString& text) { read = text; });
        EXPECT_EQ(read, std::nullopt) << "the field was kept waiting";
        queue.run();
        return read;
    }
};

TEST_F(FieldPasteTest, ReadsFromWhereTheFieldSays) {
    EXPECT_EQ(read(PasteFrom::Clipboard), u"copied"_s);
    EXPECT_EQ(read(PasteFrom::Selection), u"marked"_s);
    EXPECT_EQ(read(PasteFrom::Drag), u"dragged"_s);
}

TEST_F(FieldPasteTest, NothingIsAnEmptyText) {
    pasteboard.setContents({});
    EXPECT_EQ(read(PasteFrom::Clipboard), QString());
}

TEST_F(FieldPasteTest, ReadingThatIsGivenUpNeverAnswers) {
    bool answered = false;
    reader(PasteFrom::Clipboard, [&](const QString&) { answered = true; }).reset();
    queue.run();
    EXPECT_FALSE(answered);
}

} // namespace
} // namespace quorvane
