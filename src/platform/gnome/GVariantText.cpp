// SPDX-License-Identifier: MIT
#include "GVariantText.h"

#include <algorithm>
#include <array>

namespace quorvane::gvarianttext {

namespace {

using namespace Qt::StringLiterals;

struct Escape {
    char16_t letter;
    char16_t meaning;
};

constexpr std::array escapes{
    Escape{u'a', u'\a'},
    Escape{u'b', u'\b'},
    Escape{u'f', u'\f'},
    Escape{u'n', u'\n'},
    Escape{u'r', u'\r'},
    Escape{u't', u'\t'},
    Escape{u'v', u'\v'}};

/// Reads from the front of a text; what it has read is gone from the rest.
class Reader {
public:
    explicit Reader(QStringView text) : m_rest(text) {}

    [[nodiscard]] bool isAtEnd() {
        skipSpaces();
        return m_rest.isEmpty();
    }

    bool take(QStringView word) {
        skipSpaces();
        if (!m_rest.startsWith(word))
            return false;
        m_rest = m_rest.mid(word.size());
        return true;
    }

    [[nodiscard]] std::optional<QString> takeString() {
        for (const auto quote : {u"'", u"\""}) {
            if (take(quote))
                return takeUntil(*quote);
        }
        return std::nullopt;
    }

private:
    void skipSpaces() { m_rest = m_rest.trimmed(); }

    char16_t takeOne() {
        const auto first = m_rest.front().unicode();
        m_rest = m_rest.mid(1);
        return first;
    }

    std::optional<QString> takeUntil(char16_t quote) {
        QString string;
        while (!m_rest.isEmpty()) {
            const auto next = takeOne();
            if (next == quote)
                return string;
            if (next != u'\\') {
                string.append(next);
                continue;
            }
            const auto meant = takeEscaped();
            if (!meant)
                return std::nullopt;
            string.append(*meant);
        }
        return std::nullopt;
    }

    std::optional<QString> takeEscaped() {
        if (m_rest.isEmpty())
            return std::nullopt;
        const auto letter = takeOne();
        if (letter == u'u')
            return takeCodePoint(4);
        if (letter == u'U')
            return takeCodePoint(8);
        const auto* row = std::ranges::find(escapes, letter, &Escape::letter);
        return QString(QChar(row == escapes.end() ? letter : row->meaning));
    }

    std::optional<QString> takeCodePoint(qsizetype digits) {
        bool isNumber = false;
        const char32_t point = m_rest.left(digits).toUInt(&isNumber, 16);
        if (!isNumber || m_rest.size() < digits || point > QChar::LastValidCodePoint)
            return std::nullopt;
        m_rest = m_rest.mid(digits);
        return QString::fromUcs4(&point, 1);
    }

    QStringView m_rest;
};

} // namespace

std::optional<QString> string(QStringView text) {
    Reader reader(text);
    auto string = reader.takeString();
    return reader.isAtEnd() ? string : std::nullopt;
}

std::optional<QStringList> strings(QStringView text) {
    Reader reader(text);
    reader.take(u"@as"); // the type, which is said where no item shows it
    if (!reader.take(u"["))
        return std::nullopt;
    QStringList strings;
    while (!reader.take(u"]")) {
        const bool isFirst = strings.isEmpty();
        if (!isFirst && !reader.take(u","))
            return std::nullopt;
        const auto next = reader.takeString();
        if (!next)
            return std::nullopt;
        strings.append(*next);
    }
    return reader.isAtEnd() ? std::optional(strings) : std::nullopt;
}

QString fromString(const QString& string) {
    QString escaped = string;
    escaped.replace(u'\\', u"\\\\"_s).replace(u'\'', u"\\'"_s);
    return u'\'' + escaped + u'\'';
}

QString fromStrings(const QStringList& strings) {
    if (strings.isEmpty())
        return u"@as []"_s;
    QStringList items;
    for (const auto& string : strings)
        items.append(fromString(string));
    return u'[' + items.join(u", "_s) + u']';
}

} // namespace quorvane::gvarianttext
