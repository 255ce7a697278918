// SPDX-License-Identifier: MIT
#include "BoardSettings.h"

#include "StillStyle.h"

#include <QApplication>
#include <QFont>

namespace quorvane {

using namespace Qt::StringLiterals;

namespace {

QFont bodyFont(const BoardSetting& setting) {
    QFont font(u"Inter"_s);
    font.setPixelSize(setting.bodyPixels);
    // As Qt itself does on screens that have more device pixels than points.
    if (setting.scale > 1)
        font.setHintingPreference(QFont::PreferNoHinting);
    return font;
}

void apply(const BoardSetting& setting) {
    QApplication::setPalette(builtInPalette(setting.scheme, setting.contrast));
    QApplication::setFont(bodyFont(setting));
    QApplication::setLayoutDirection(setting.direction);
}

} // namespace

std::vector<BoardSetting> boardSettings() {
    return {
        {.name = u"light"_s},
        {.name = u"dark"_s, .scheme = ColorScheme::Dark},
        {.name = u"contrast"_s, .contrast = ContrastLevel::High},
        {.name = u"contrast-dark"_s, .scheme = ColorScheme::Dark, .contrast = ContrastLevel::High},
        {.name = u"light@1x"_s, .scale = 1},
        {.name = u"light@1.25x"_s, .scale = 1.25},
        {.name = u"light@1.5x"_s, .scale = 1.5},
        {.name = u"dark@1.25x"_s, .scheme = ColorScheme::Dark, .scale = 1.25},
        {.name = u"body-9"_s, .bodyPixels = 9},
        {.name = u"body-16"_s, .bodyPixels = 16},
        {.name = u"hebrew"_s, .direction = Qt::RightToLeft, .localeName = u"he_IL"_s},
        {.name = u"hebrew-dark"_s,
         .scheme = ColorScheme::Dark,
         .direction = Qt::RightToLeft,
         .localeName = u"he_IL"_s},
        {.name = u"french"_s, .localeName = u"fr_FR"_s},
        {.name = u"thai"_s, .localeName = u"th_TH"_s},
        {.name = u"longer"_s, .texts = BoardSetting::Texts::Longer},
    };
}

AppliedSetting::AppliedSetting(const BoardSetting& setting) {
    QApplication::setStyle(new StillStyle);
    QApplication::setCursorFlashTime(0);
    apply(setting);
    if (setting.texts == BoardSetting::Texts::Longer) {
        m_texts = std::make_unique<LongerTexts>();
        QCoreApplication::installTranslator(m_texts.get());
    }
}

AppliedSetting::~AppliedSetting() {
    if (m_texts)
        QCoreApplication::removeTranslator(m_texts.get());
    apply({});
}

} // namespace quorvane
