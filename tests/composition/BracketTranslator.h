// SPDX-License-Identifier: MIT
#pragma once

#include <QTranslator>

namespace quorvane {

/// Translates every text into itself with its context, in brackets.
class BracketTranslator final : public QTranslator {
public:
    [[nodiscard]] bool isEmpty() const override { return false; }

    [[nodiscard]] QString
    translate(const char* context, const char* text, const char* /*disambiguation*/, int /*count*/)
        const override {
        return QStringLiteral("[%1:%2]").arg(QString::fromUtf8(context), QString::fromUtf8(text));
    }
};

} // namespace quorvane
