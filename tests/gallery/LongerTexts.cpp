// SPDX-License-Identifier: MIT
#include "LongerTexts.h"

namespace quorvane {

QString LongerTexts::translate(
    const char* /*context*/,
    const char* text,
    const char* /*disambiguation*/,
    int /*count*/) const {
    const auto original = QString::fromUtf8(text);
    const auto more = (original.size() * 2 + 4) / 5;
    return original + QStringLiteral("enlangestexte").repeated(3).left(more);
}

} // namespace quorvane
