// SPDX-License-Identifier: MIT
#include "PreferencesBoard.h"

#include "BoardSettings.h"
#include "PanelPlay.h"

#include <support/GalleryFolder.h>

#include <QImage>
#include <QLayout>
#include <QPainter>
#include <QTest>
#include <gtest/gtest.h>

namespace quorvane {
namespace {

using namespace Qt::StringLiterals;

constexpr auto settings = PreferencesBoard::Content::Settings;
constexpr auto help = PreferencesBoard::Content::DesktopHelp;

/// In an active window of its own, so that one text field has the focus.
QImage picture(ColorScheme scheme, double scale, PreferencesBoard::Content content) {
    QWidget window;
    PreferencesBoard board(scheme, content, &window);
    window.resize(board.size());
    window.show();
    window.activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
    QImage image(board.size() * scale, QImage::Format_RGB32);
    image.setDevicePixelRatio(scale);
    board.render(&image);
    return image;
}

/// Light above dark.
void writePictures(const BoardSetting& setting, PreferencesBoard::Content content) {
    const AppliedSetting applied(setting);
    const auto light = picture(ColorScheme::Light, setting.scale, content);
    const auto dark = picture(ColorScheme::Dark, setting.scale, content);
    QImage both(light.width(), light.height() + dark.height(), QImage::Format_RGB32);
    QPainter painter(&both);
    painter.drawImage(QRect(QPoint(), light.size()), light);
    painter.drawImage(QRect(QPoint(0, light.height()), dark.size()), dark);
    painter.end();
    EXPECT_TRUE(both.save(galleryFile(setting.name)));
    EXPECT_NE(light.pixel(light.rect().center()), light.pixel(0, 0));
    EXPECT_NE(light.pixel(0, 0), dark.pixel(0, 0));
}

TEST(Preferences, AreWrittenLightAboveDark) {
    writePictures({.name = u"preferences"_s}, settings);
    writePictures({.name = u"preferences@1x"_s, .scale = 1}, settings);
}

TEST(Preferences, AreWrittenInSmallAndLargeBodyFonts) {
    writePictures({.name = u"preferences-body-9"_s, .scale = 1, .bodyPixels = 9}, settings);
    writePictures({.name = u"preferences-body-16"_s, .scale = 1, .bodyPixels = 16}, settings);
}

TEST(Preferences, HelpWithTheDesktopIsWritten) {
    writePictures({.name = u"desktop-help"_s}, help);
    writePictures({.name = u"desktop-help@1x"_s, .scale = 1}, help);
    writePictures({.name = u"desktop-help-body-24"_s, .scale = 1, .bodyPixels = 24}, help);
    writePictures(
        {.name = u"desktop-help-hebrew"_s,
         .scale = 1,
         .direction = Qt::RightToLeft,
         .localeName = u"he_IL"_s},
        help);
}

TEST(Preferences, AreWrittenInEveryLanguage) {
    for (auto setting : languageSettings()) {
        const auto language = setting.name;
        setting.name = u"preferences-"_s + language;
        writePictures(setting, settings);
        setting.name = u"desktop-help-"_s + language;
        writePictures(setting, help);
    }
}

class HintPicture : public testing::TestWithParam<BoardSetting> {};

TEST_P(HintPicture, IsWritten) {
    const AppliedSetting applied(GetParam());
    PanelPlay play(GetParam());
    play.view().setHint({u"Ctrl+Shift+Super+D opens Quorvane in any application."_s, u"Change…"_s});
    play.setHeight(play.view().layout()->heightForWidth(play.view().width()));
    const auto picture = play.picture();
    QImage image(picture.size() * GetParam().scale, QImage::Format_RGB32);
    image.setDevicePixelRatio(GetParam().scale);
    image.fill(Qt::gray);
    QPainter painter(&image);
    picture.paint(painter, {});
    painter.end();
    EXPECT_TRUE(image.save(galleryFile(u"hint-"_s + GetParam().name)));
}

INSTANTIATE_TEST_SUITE_P(
    Settings, HintPicture, testing::ValuesIn(boardSettings()), testing::PrintToStringParamName());

} // namespace
} // namespace quorvane
