// SPDX-License-Identifier: MIT
#include "FoldedText.h"

#include <algorithm>
#include <array>

namespace quorvane {

namespace {

struct Letter {
    char16_t letter;
    const char* plain;
};

// What Unicode does not take apart.
constexpr std::array letters{
    Letter{u'ß', "ss"},
    Letter{u'æ', "ae"},
    Letter{u'œ', "oe"},
    Letter{u'ø', "o"},
    Letter{u'ł', "l"},
    Letter{u'đ', "d"},
    Letter{u'ı', "i"},
    Letter{u'\u2212', "-"},
    Letter{u'\u2019', "'"}};

bool isPlain(const QString& text) {
    return std::ranges::all_of(text, [](QChar each) { return each.unicode() < 0x80; });
}

} // namespace

QString foldedText(const QString& text) {
    if (isPlain(text))
        return text.toLower();
    QString folded;
    for (const auto each : text.toLower().normalized(QString::NormalizationForm_KD)) {
        const auto found = std::ranges::find(letters, each.unicode(), &Letter::letter);
        if (found != letters.end())
            folded += QLatin1StringView(found->plain);
        else if (each.category() != QChar::Mark_NonSpacing)
            folded += each;
    }
    return folded;
}

} // namespace quorvane
