// SPDX-License-Identifier: MIT
#include "MergedItem.h"

#include <testing/FakePasteboard.h>

#include <gtest/gtest.h>

namespace quorvane {
namespace {

using namespace Qt::StringLiterals;

const auto text = u"text/plain"_s;
const auto files = u"text/uri-list"_s;
const auto image = u"image/png"_s;

TEST(MergedItem, NothingGivesNothing) {
    EXPECT_TRUE(mergedItem({}).empty());
    EXPECT_TRUE(mergedItem({{}, {}}).empty());
}

TEST(MergedItem, OneItemStaysAsItIs) {
    const PasteboardItem item{pasteboardEntry(text, "a"), pasteboardEntry(image, "b")};
    EXPECT_EQ(mergedItem({item}), item);
}

TEST(MergedItem, TypeThatOccursTwiceKeepsItsFirstPlaceAndItsLastData) {
    const auto merged = mergedItem(
        {{pasteboardEntry(files, "file:///a"), pasteboardEntry(text, "a")},
         {pasteboardEntry(image, "png"), pasteboardEntry(files, "file:///b")}});
    const PasteboardItem expected{
        pasteboardEntry(files, "file:///b"),
        pasteboardEntry(text, "a"),
        pasteboardEntry(image, "png")};
    EXPECT_EQ(merged, expected);
}

TEST(MergedItem, LaterDataBringsItsEncodingAlong) {
    const PasteboardEntry words{text, "abcd", u"INTEGER"_s, 32};
    EXPECT_EQ(mergedItem({{pasteboardEntry(text, "a")}, {words}}), PasteboardItem{words});
}

} // namespace
} // namespace quorvane
