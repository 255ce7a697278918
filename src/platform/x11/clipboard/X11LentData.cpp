// SPDX-License-Identifier: MIT
#include "X11LentData.h"

#include <algorithm>
#include <array>
#include <optional>
#include <utility>

namespace quorvane {

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

std::optional<QString> textOf(const PasteboardItem& item) {
    for (const auto& [name, decoded] : textTypes) {
        const auto entry = std::ranges::find(item, name, &PasteboardEntry::type);
        if (entry != item.end())
            return decoded(entry->bytes);
    }
    return std::nullopt;
}

// Target names for texts that Qt adds by itself.
bool isTextOfQts(const QString& type) {
    return type == u"TEXT" || type == u"COMPOUND_TEXT" ||
           std::ranges::find(textTypes, type, &TextType::name) != textTypes.end();
}

} // namespace

X11LentData::X11LentData(PasteboardItem item) : m_item(std::move(item)) {
    for (const auto& entry : m_item) {
        if (entry.unitBits == 8 && !isTextOfQts(entry.type))
            setData(entry.type, entry.bytes);
    }
    if (const auto text = textOf(m_item))
        setText(*text);
}

} // namespace quorvane
