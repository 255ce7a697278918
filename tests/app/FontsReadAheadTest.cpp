// SPDX-License-Identifier: MIT
#include "FontsReadAhead.h"

#include <QFontDatabase>
#include <gtest/gtest.h>

namespace quorvane {
namespace {

using namespace Qt::StringLiterals;

TEST(FontsReadAhead, LeavesQtTheFontsThatItWouldHaveFound) {
    FontsReadAhead fonts;
    fonts.finish();
    EXPECT_TRUE(QFontDatabase::families().contains(u"DejaVu Sans"_s));
}

TEST(FontsReadAhead, MayBeAskedMoreThanOnceAndNotAtAll) {
    FontsReadAhead fonts;
    fonts.finish();
    fonts.finish();
    const FontsReadAhead unasked;
}

} // namespace
} // namespace quorvane
