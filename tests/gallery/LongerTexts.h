// SPDX-License-Identifier: MIT
#pragma once

#include <QTranslator>

namespace quorvane {

/// A language whose texts are two fifths longer than ours, as some languages' are.
class LongerTexts final : public QTranslator {
    Q_OBJECT

public:
    [[nodiscard]] QString
    translate(const char* context, const char* text, const char* disambiguation, int count)
        const override;

    /// Without this Qt takes the translator for one that has nothing to say.
    [[nodiscard]] bool isEmpty() const override { return false; }
};

} // namespace quorvane
