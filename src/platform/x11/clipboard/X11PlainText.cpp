// SPDX-License-Identifier: MIT
#include "X11PlainText.h"

#include <algorithm>
#include <array>

namespace quorvane {

using namespace Qt::StringLiterals;

namespace {

struct TextType {
    QStringView name;
    QString (*decoded)(const QByteArray& bytes);
};

QString fromUtf8(const QByteArray& bytes) {
    return QString::fromUtf8(bytes);
}

QString fromLatin1(const QByteArray& bytes) {
    return QString::fromLatin1(bytes);
}

constexpr std::array textTypes{
    TextType{u"UTF8_STRING", fromUtf8},
    TextType{u"text/plain;charset=utf-8", fromUtf8},
    TextType{u"text/plain", fromUtf8},
    TextType{u"STRING", fromLatin1},
};

// Klipper's convention, which other clipboard histories have adopted.
constexpr QStringView historyHint = u"x-kde-passwordManagerHint";

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
    const auto hint = historyHint.toString();
    if (stay == TextStay::Passing)
        item.push_back({hint, "secret"_ba, hint});
    return item;
}

std::optional<QString> textOf(const PasteboardItem& item) {
    for (const auto& [name, decoded] : textTypes) {
        const auto entry = std::ranges::find(item, name, &PasteboardEntry::type);
        if (entry != item.end() && entry->unitBits == 8)
            return decoded(entry->bytes);
    }
    return std::nullopt;
}

QStringList plainTextTargets() {
    QStringList names;
    for (const auto& type : textTypes)
        names.append(type.name.toString());
    return names;
}

bool isPlainText(const QString& type) {
    return type == u"TEXT" || type == u"COMPOUND_TEXT" ||
           std::ranges::find(textTypes, type, &TextType::name) != textTypes.end();
}

bool isSecret(const PasteboardItem& item) {
    const auto hint = std::ranges::find(item, historyHint, &PasteboardEntry::type);
    return hint != item.end() && hint->bytes.startsWith("secret");
}

} // namespace quorvane
