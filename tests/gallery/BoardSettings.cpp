// SPDX-License-Identifier: MIT
#include "BoardSettings.h"

#include "LongerTexts.h"
#include "StillStyle.h"

#include <testing/PseudoTexts.h>

#include <QApplication>
#include <QFont>
#include <QLocale>

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

std::unique_ptr<QTranslator> textsOf(const BoardSetting& setting) {
    switch (setting.texts) {
    case BoardSetting::Texts::Longer:
        return std::make_unique<LongerTexts>();
    case BoardSetting::Texts::Pseudo:
        return std::make_unique<PseudoTexts>();
    case BoardSetting::Texts::OfLanguage:
        break;
    }
    return nullptr;
}

/// Texts and dates of one locale.
BoardSetting spoken(const QString& name, const QString& localeName) {
    const QLocale locale(localeName);
    return {
        .name = name,
        .scale = 1,
        .direction = locale.textDirection(),
        .localeName = localeName,
        .language = localeName.section(u'_', 0, 0)};
}

void apply(const BoardSetting& setting) {
    QApplication::setPalette(builtInPalette(setting.scheme, setting.contrast));
    QApplication::setFont(bodyFont(setting));
    QApplication::setLayoutDirection(setting.direction);
}

} // namespace

std::vector<BoardSetting> boardSettings() {
    std::vector<BoardSetting> settings{
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
        {.name = u"french-dates"_s, .localeName = u"fr_FR"_s},
        {.name = u"thai"_s, .localeName = u"th_TH"_s},
        {.name = u"longer"_s, .texts = BoardSetting::Texts::Longer},
    };
    const auto languages = languageSettings();
    settings.insert(settings.end(), languages.begin(), languages.end());
    return settings;
}

std::vector<BoardSetting> languageSettings() {
    return {
        spoken(u"german"_s, u"de_DE"_s),
        spoken(u"french"_s, u"fr_FR"_s),
        spoken(u"spanish"_s, u"es_ES"_s),
        spoken(u"japanese"_s, u"ja_JP"_s),
        spoken(u"arabic"_s, u"ar_EG"_s),
        {.name = u"pseudo"_s,
         .scale = 1,
         .direction = Qt::RightToLeft,
         .texts = BoardSetting::Texts::Pseudo},
    };
}

AppliedSetting::AppliedSetting(const BoardSetting& setting) {
    QApplication::setStyle(new StillStyle);
    QApplication::setCursorFlashTime(0);
    apply(setting);
    m_language = std::make_unique<InterfaceLanguage>([&setting](const char* name) {
        return qstrcmp(name, "LANG") == 0 ? std::optional(setting.language) : std::nullopt;
    });
    m_texts = textsOf(setting);
    if (m_texts)
        QCoreApplication::installTranslator(m_texts.get());
}

AppliedSetting::~AppliedSetting() {
    apply({});
}

} // namespace quorvane
