// SPDX-License-Identifier: MIT
#include "PreferencesBoard.h"

#include "BoardSettings.h"

#include <support/GalleryFolder.h>

#include <QImage>
#include <QPainter>
#include <QTest>
#include <gtest/gtest.h>

namespace quorvane {
namespace {

using namespace Qt::StringLiterals;

/// In an active window of its own, so that one text field has the focus.
QImage picture(ColorScheme scheme, double scale) {
    QWidget window;
    PreferencesBoard board(scheme, &window);
    window.resize(board.size());
    window.show();
    window.activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
    QImage image(board.size() * scale, QImage::Format_RGB32);
    image.setDevicePixelRatio(scale);
    board.render(&image);
    return image;
}

/// Light above dark, in a body font of that size.
void writePictures(int pixels, double scale, const QString& name) {
    const AppliedSetting applied({.name = name, .scale = scale, .bodyPixels = pixels});
    const auto light = picture(ColorScheme::Light, scale);
    const auto dark = picture(ColorScheme::Dark, scale);
    QImage both(light.width(), light.height() + dark.height(), QImage::Format_RGB32);
    QPainter painter(&both);
    painter.drawImage(QRect(QPoint(), light.size()), light);
    painter.drawImage(QRect(QPoint(0, light.height()), dark.size()), dark);
    painter.end();
    EXPECT_TRUE(both.save(galleryFile(name)));
    EXPECT_NE(light.pixel(light.rect().center()), light.pixel(0, 0));
    EXPECT_NE(light.pixel(0, 0), dark.pixel(0, 0));
}

TEST(Preferences, AreWrittenLightAboveDark) {
    writePictures(13, 2, u"preferences"_s);
    writePictures(13, 1, u"preferences@1x"_s);
}

TEST(Preferences, AreWrittenInSmallAndLargeBodyFonts) {
    writePictures(9, 1, u"preferences-body-9"_s);
    writePictures(16, 1, u"preferences-body-16"_s);
}

} // namespace
} // namespace quorvane
