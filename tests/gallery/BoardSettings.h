// SPDX-License-Identifier: MIT
#pragma once

#include <controls/Theme.h>
#include <language/InterfaceLanguage.h>
#include <time/UserLocale.h>

#include <QString>

#include <cctype>
#include <memory>
#include <ostream>
#include <vector>

namespace quorvane {

/// What a desktop and its user decide about how everything is painted.
struct BoardSetting {
    QString name; ///< what the pictures' names end with
    ColorScheme scheme = ColorScheme::Light;
    ContrastLevel contrast = ContrastLevel::Normal;
    double scale = 2; ///< device pixels for a point
    int bodyPixels = 13;
    Qt::LayoutDirection direction = Qt::LeftToRight;
    QString localeName = QStringLiteral("en_US");
    QString language = QStringLiteral("en"); ///< of the texts
    enum class Texts { OfLanguage, Longer, Pseudo } texts = Texts::OfLanguage;

    [[nodiscard]] UserLocale locale() const { return UserLocale::named(localeName); }

    /// As the name of a test, which takes letters, digits and underlines alone.
    friend void PrintTo(const BoardSetting& setting, std::ostream* stream) {
        for (const auto letter : setting.name.toStdString())
            *stream << (std::isalnum(static_cast<unsigned char>(letter)) ? letter : '_');
    }
};

/// All that the pictures are made for.
[[nodiscard]] std::vector<BoardSetting> boardSettings();

/// Those of them that have other texts than ours: every language that there is a catalogue for, and
/// the one that nobody speaks.
[[nodiscard]] std::vector<BoardSetting> languageSettings();

/// Makes the application follow a setting for as long as it lives.
class AppliedSetting {
public:
    explicit AppliedSetting(const BoardSetting& setting);
    ~AppliedSetting();
    Q_DISABLE_COPY_MOVE(AppliedSetting)

private:
    std::unique_ptr<QTranslator> m_texts;
    std::unique_ptr<InterfaceLanguage> m_language;
};

} // namespace quorvane
