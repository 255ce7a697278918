// SPDX-License-Identifier: MIT
#include "OutputParts.h"

namespace quorvane {

using namespace Qt::StringLiterals;

QString documentText(QString output) {
    constexpr QChar zeroWidthSpace(0x200b);
    return output.replace(u"\r\n"_s, QString(zeroWidthSpace) + u'\n');
}

qsizetype firstPartLength(const QString& text, qsizetype size) {
    if (size >= text.size())
        return text.size();
    return text.at(size).isLowSurrogate() ? size + 1 : size;
}

qsizetype nextPartLength(const QString& text, qsizetype shown, qsizetype size) {
    if (shown + size >= text.size())
        return text.size() - shown;
    const auto feed = text.indexOf(u'\n', shown + size);
    return (feed < 0 ? text.size() : feed + 1) - shown;
}

} // namespace quorvane
