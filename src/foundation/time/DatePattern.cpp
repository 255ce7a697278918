// SPDX-License-Identifier: MIT
#include <time/DatePattern.h>

#include <functional>

namespace quorvane {

namespace {

// The "Date Field Symbol Table" of UTS #35, without the letters of skeletons alone (j, J, C) and
// the deprecated l, which gives nothing.
constexpr QStringView knownLetters = u"GyYuUrQqMLwWdDFgEecabBhHKkmsSAzZOvVXx";

bool isLetter(QChar character) {
    return (character >= u'A' && character <= u'Z') || (character >= u'a' && character <= u'z');
}

/// Calls `visit` with the position of each letter outside quotes. Two quotes beside each other
/// stand for one: here they close and open, or open and close.
void visitLetters(QStringView pattern, const std::function<void(qsizetype)>& visit) {
    bool isQuoted = false;
    for (qsizetype at = 0; at < pattern.size(); ++at) {
        if (pattern[at] == u'\'')
            isQuoted = !isQuoted;
        else if (!isQuoted && isLetter(pattern[at]))
            visit(at);
    }
}

} // namespace

std::vector<qsizetype> unknownPatternLetters(QStringView pattern) {
    std::vector<qsizetype> unknown;
    visitLetters(pattern, [&](qsizetype at) {
        if (!knownLetters.contains(pattern[at]))
            unknown.push_back(at);
    });
    return unknown;
}

bool hasIsoWeek(QStringView pattern) {
    bool found = false;
    visitLetters(pattern, [&](qsizetype at) {
        found = found || (pattern[at] == u'w' && pattern.first(at).endsWith(u"W'"));
    });
    return found;
}

} // namespace quorvane
