// SPDX-License-Identifier: MIT
#pragma once

#include <QTranslator>

namespace quorvane {

/// A language that is ours in full-width letters: what still has plain ones went past tr().
class MarkedTexts final : public QTranslator {
public:
    /// Without this Qt takes the translator for one that has nothing to say.
    [[nodiscard]] bool isEmpty() const override { return false; }

    [[nodiscard]] QString translate(
        const char* /*context*/,
        const char* text,
        const char* /*disambiguation*/,
        int /*count*/) const override {
        return marked(QString::fromUtf8(text));
    }

    /// What a text becomes; placeholders ("%1", "%n") stay.
    [[nodiscard]] static QString marked(QString text) {
        constexpr ushort toFullWidth = 0xFF21 - 'A';
        for (qsizetype i = 0; i < text.size(); ++i) {
            const auto unit = text[i].unicode();
            const bool isLetter = unit < 0x80 && text[i].isLetter();
            if (isLetter && (i == 0 || text[i - 1] != u'%'))
                text[i] = QChar(static_cast<ushort>(unit + toFullWidth));
        }
        return text;
    }
};

} // namespace quorvane
