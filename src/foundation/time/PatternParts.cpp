// SPDX-License-Identifier: MIT
#include "PatternParts.h"

namespace quorvane {

namespace {

bool isFieldLetter(QChar character) {
    return (character >= u'a' && character <= u'z') || (character >= u'A' && character <= u'Z');
}

void appendText(std::vector<PatternPart>& parts, QChar character) {
    if (parts.empty() || !parts.back().letter.isNull())
        parts.push_back({});
    parts.back().text += character;
}

void appendLetter(std::vector<PatternPart>& parts, QChar letter) {
    if (parts.empty() || parts.back().letter != letter)
        parts.push_back({letter, 0, {}});
    ++parts.back().length;
}

} // namespace

std::vector<PatternPart> patternParts(const QString& pattern) {
    std::vector<PatternPart> parts;
    bool isQuoted = false;
    for (qsizetype index = 0; index < pattern.size(); ++index) {
        const QChar character = pattern[index];
        // Two quotes are one, in and out of a quoted text.
        if (character == u'\'' && pattern.mid(index + 1, 1) == QStringLiteral("'"))
            appendText(parts, pattern[index++]);
        else if (character == u'\'')
            isQuoted = !isQuoted;
        else if (!isQuoted && isFieldLetter(character))
            appendLetter(parts, character);
        else
            appendText(parts, character);
    }
    return parts;
}

} // namespace quorvane
