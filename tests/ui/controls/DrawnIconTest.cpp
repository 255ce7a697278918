// SPDX-License-Identifier: MIT
#include <controls/DrawnIcon.h>

#include <QPixmap>
#include <gtest/gtest.h>

namespace quorvane {
namespace {

using namespace Qt::StringLiterals;

QImage pictureOf(const QIcon& icon, int size) {
    return icon.pixmap(QSize(size, size)).toImage().convertToFormat(QImage::Format_ARGB32);
}

TEST(DrawnIcon, LooksAsQtsOwnInEachSize) {
    const auto path = u":/symbols/gear.svg"_s;
    const auto drawn = drawnIcon(path);
    const QIcon own(path);
    for (const int size : {16, 32, 64, 128}) {
        const auto picture = pictureOf(drawn, size);
        EXPECT_EQ(picture.size(), QSize(size, size));
        EXPECT_EQ(picture, pictureOf(own, size)) << size;
    }
}

TEST(DrawnIcon, OfAFileThatIsMissingShowsNothing) {
    auto nothing = QImage(16, 16, QImage::Format_ARGB32);
    nothing.fill(Qt::transparent);
    EXPECT_EQ(pictureOf(drawnIcon(u":/symbols/none.svg"_s), 16), nothing);
}

} // namespace
} // namespace quorvane
