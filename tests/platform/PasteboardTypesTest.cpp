// SPDX-License-Identifier: MIT
#include <platform/PasteboardTypes.h>

#include <gtest/gtest.h>

namespace quorvane {
namespace {

using namespace Qt::StringLiterals;

TEST(X11SelectionTargets, QuestionsAndOrdersAreNoContents) {
    const QStringList all{
        u"TIMESTAMP"_s,
        u"TARGETS"_s,
        u"MULTIPLE"_s,
        u"SAVE_TARGETS"_s,
        u"DELETE"_s,
        u"INSERT_SELECTION"_s,
        u"INSERT_PROPERTY"_s,
        u"text/html"_s};
    EXPECT_EQ(contentTypes(all), QStringList{u"text/html"_s});
}

TEST(X11SelectionTargets, ContentsKeepTheOwnersOrderEachOnce) {
    const QStringList all{u"b"_s, u"TARGETS"_s, u"a"_s, u"b"_s, QString(), u"delete"_s};
    EXPECT_EQ(contentTypes(all), (QStringList{u"b"_s, u"a"_s, u"delete"_s}));
}

TEST(X11SelectionTargets, TextAddressesHtmlAndPicturesAreReadFirst) {
    const QStringList all{
        u"image/png"_s,
        u"odd"_s,
        u"text/html"_s,
        u"image/bmp"_s,
        u"text/uri-list"_s,
        u"STRING"_s,
        u"text/plain"_s,
        u"UTF8_STRING"_s,
        u"text/plain;charset=utf-8"_s};
    const QStringList expected{
        u"UTF8_STRING"_s,
        u"text/plain;charset=utf-8"_s,
        u"text/plain"_s,
        u"STRING"_s,
        u"text/uri-list"_s,
        u"text/html"_s,
        u"image/png"_s,
        u"odd"_s,
        u"image/bmp"_s};
    EXPECT_EQ(readingOrder(all), expected);
}

} // namespace
} // namespace quorvane
