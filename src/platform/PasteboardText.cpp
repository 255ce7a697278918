// SPDX-License-Identifier: MIT
#include <platform/PasteboardText.h>

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
constexpr QStringView hintType = u"x-kde-passwordManagerHint";

} // namespace

std::optional<QString> textOf(const PasteboardItem& item) {
    for (const auto& [name, decoded] : textTypes) {
        const auto entry = std::ranges::find(item, name, &PasteboardEntry::type);
        if (entry != item.end() && entry->unitBits == 8)
            return decoded(entry->bytes);
    }
    return std::nullopt;
}

QStringList plainTextTypes() {
    QStringList names;
    for (const auto& type : textTypes)
        names.append(type.name.toString());
    return names;
}

bool isPlainText(const QString& type) {
    return type == u"TEXT" || type == u"COMPOUND_TEXT" ||
           std::ranges::find(textTypes, type, &TextType::name) != textTypes.end();
}

PasteboardEntry historyHint() {
    return {hintType.toString(), "secret"_ba, hintType.toString()};
}

bool isSecret(const PasteboardItem& item) {
    const auto hint = std::ranges::find(item, hintType, &PasteboardEntry::type);
    return hint != item.end() && hint->bytes.startsWith("secret");
}

} // namespace quorvane
