// SPDX-License-Identifier: MIT
#pragma once

#include <QTranslator>

namespace quorvane {

/// A language that nobody speaks: our texts with an accent on every letter and two fifths longer,
/// so that one sees at once what is cut off and what never came to translation. It has what our
/// catalogues have, and everything of Qt's.
class PseudoTexts final : public QTranslator {
public:
    PseudoTexts();

    /// What a text becomes; placeholders ("%1", "%n") stay.
    [[nodiscard]] static QString pseudo(const QString& text);

    [[nodiscard]] QString
    translate(const char* context, const char* text, const char* disambiguation, int count)
        const override;

    /// Without this Qt takes the translator for one that has nothing to say.
    [[nodiscard]] bool isEmpty() const override { return false; }

private:
    QTranslator m_catalogue;
};

} // namespace quorvane
