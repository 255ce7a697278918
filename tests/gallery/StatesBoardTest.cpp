// SPDX-License-Identifier: MIT
#include "StatesBoard.h"

#include "BoardSettings.h"

#include <support/GalleryFolder.h>

#include <QImage>
#include <QTest>
#include <gtest/gtest.h>

namespace quorvane {
namespace {

using namespace Qt::StringLiterals;

QImage picture(QWidget& widget, double scale) {
    QImage image(widget.size() * scale, QImage::Format_RGB32);
    image.setDevicePixelRatio(scale);
    widget.render(&image);
    return image;
}

QString nameOf(ColorScheme scheme) {
    return scheme == ColorScheme::Light ? u"light"_s : u"dark"_s;
}

/// Shown, so that layouts are where a user sees them.
void writePictures(const QString& name, ColorScheme scheme) {
    QWidget window;
    StatesBoard board(scheme, &window);
    window.resize(board.size());
    window.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&window));
    for (const double scale : {1.0, 1.25, 1.5, 2.0}) {
        const auto image = picture(board, scale);
        EXPECT_TRUE(image.save(galleryFile(u"%1-%2@%3x"_s.arg(name, nameOf(scheme)).arg(scale))));
        // A board that shows nothing has one colour.
        EXPECT_NE(image.pixel(image.rect().center()), image.pixel(0, 0));
    }
}

class States : public testing::TestWithParam<ColorScheme> {};

TEST_P(States, AreWrittenAtEveryScale) {
    const AppliedSetting applied({});
    writePictures(u"states"_s, GetParam());
}

TEST_P(States, AreWrittenInSmallAndLargeBodyFonts) {
    for (const int pixels : {9, 16}) {
        const AppliedSetting applied({.name = {}, .bodyPixels = pixels});
        writePictures(u"states-body-%1"_s.arg(pixels), GetParam());
    }
}

INSTANTIATE_TEST_SUITE_P(Schemes, States, testing::Values(ColorScheme::Light, ColorScheme::Dark));

} // namespace
} // namespace quorvane
