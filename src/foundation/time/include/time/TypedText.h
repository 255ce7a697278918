// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace quorvane {

/// How far a text has come that is being typed.
enum class TypingState {
    Refused,    ///< no further typing could make it valid
    Unfinished, ///< it may become valid
    Complete,
};

/// The text with the digits of every script as 0 to 9.
[[nodiscard]] QString withAsciiDigits(QStringView text);

/// The text in the form in which typed words and numbers are compared: ASCII digits, one case,
/// plain spaces, typewriter quotes and hyphens, without marks that only direct or join letters, and
/// without spaces at its ends.
[[nodiscard]] QString comparableText(QStringView text);

/// A regular expression for the text as comparableText() gives it, in which dots and spaces may be
/// added or left out.
[[nodiscard]] QString looseExpression(const QString& comparable);

} // namespace quorvane
