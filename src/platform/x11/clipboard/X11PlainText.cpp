// SPDX-License-Identifier: MIT
#include "X11PlainText.h"

#include <algorithm>

namespace quorvane {

using namespace Qt::StringLiterals;

namespace {

bool isLatin1(const QString& text) {
    return std::ranges::all_of(text, [](QChar unit) { return unit.unicode() <= 0xFF; });
}

} // namespace

PasteboardItem plainTextItem(const QString& text) {
    const auto utf8 = text.toUtf8();
    PasteboardItem item{
        {u"UTF8_STRING"_s, utf8, u"UTF8_STRING"_s},
        {u"text/plain;charset=utf-8"_s, utf8, u"text/plain;charset=utf-8"_s},
        {u"text/plain"_s, utf8, u"text/plain"_s},
    };
    // STRING is Latin-1; the encoding of TEXT is the owner's choice (ICCCM 2.6.2). Programs that
    // ask for TEXT are too old for UTF-8 and get Latin-1. A text that Latin-1 cannot hold offers no
    // STRING, and UTF-8 as TEXT.
    if (isLatin1(text)) {
        item.push_back({u"STRING"_s, text.toLatin1(), u"STRING"_s});
        item.push_back({u"TEXT"_s, text.toLatin1(), u"STRING"_s});
    } else {
        item.push_back({u"TEXT"_s, utf8, u"UTF8_STRING"_s});
    }
    return item;
}

PasteboardItem plainTextItem(const QString& text, TextStay stay) {
    auto item = plainTextItem(text);
    if (stay == TextStay::Passing)
        item.push_back(historyHint());
    return item;
}

} // namespace quorvane
