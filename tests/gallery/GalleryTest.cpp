// SPDX-License-Identifier: MIT
#include <gallery/PopoversBoard.h>
#include <gallery/StatesBoard.h>

#include <QApplication>
#include <QDir>
#include <QImage>
#include <QTest>
#include <gtest/gtest.h>

namespace quorvane {
namespace {

using namespace Qt::StringLiterals;

QString folder() {
    const auto path = qEnvironmentVariable("QUORVANE_GALLERY_FOLDER", u"gallery"_s);
    QDir().mkpath(path);
    return path;
}

QImage picture(QWidget& widget, double scale) {
    QImage image(widget.size() * scale, QImage::Format_RGB32);
    image.setDevicePixelRatio(scale);
    widget.render(&image);
    return image;
}

QFont bodyFont(int pixels) {
    QFont font(u"Inter"_s);
    font.setPixelSize(pixels);
    return font;
}

QString nameOf(ColorScheme scheme) {
    return scheme == ColorScheme::Light ? u"light"_s : u"dark"_s;
}

/// Shown, so that layouts and list views are where a user sees them.
template <typename Board>
void writePictures(const QString& name, ColorScheme scheme) {
    QWidget window;
    Board board(scheme, &window);
    window.resize(board.size());
    window.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&window));
    for (const double scale : {1.0, 1.25, 2.0}) {
        const auto image = picture(board, scale);
        EXPECT_TRUE(
            image.save(u"%1/%2-%3@%4x.png"_s.arg(folder(), name, nameOf(scheme)).arg(scale)));
        // A board that shows nothing has one colour.
        EXPECT_NE(image.pixel(image.rect().center()), image.pixel(0, 0));
    }
}

class Gallery : public testing::TestWithParam<ColorScheme> {};

TEST_P(Gallery, StatesAreWrittenAtEveryScale) {
    QApplication::setFont(bodyFont(13));
    writePictures<StatesBoard>(u"states"_s, GetParam());
}

TEST_P(Gallery, StatesAreWrittenInSmallAndLargeBodyFonts) {
    for (const int pixels : {9, 16}) {
        QApplication::setFont(bodyFont(pixels));
        writePictures<StatesBoard>(u"states-body-%1"_s.arg(pixels), GetParam());
    }
    QApplication::setFont(bodyFont(13));
}

TEST_P(Gallery, PopoversAreWrittenAtEveryScale) {
    QApplication::setFont(bodyFont(13));
    writePictures<PopoversBoard>(u"popovers"_s, GetParam());
}

INSTANTIATE_TEST_SUITE_P(Schemes, Gallery, testing::Values(ColorScheme::Light, ColorScheme::Dark));

} // namespace
} // namespace quorvane
