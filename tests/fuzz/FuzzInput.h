// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>

namespace quorvane {

/// Ends the process where a property does not hold: a fuzzer keeps the input that led there.
inline void demand(bool holds, const char* property) {
    if (holds)
        return;
    std::fprintf(stderr, "does not hold: %s\n", property);
    std::abort();
}

/// Takes values from the bytes that a fuzzer makes up. Past their end all values are zero.
class FuzzInput {
public:
    FuzzInput(const std::uint8_t* data, std::size_t size)
        : m_rest(QByteArray::fromRawData(
              reinterpret_cast<const char*>(data), static_cast<qsizetype>(size))) {}

    [[nodiscard]] bool isAtEnd() const { return m_rest.isEmpty(); }

    template <typename Number = std::uint8_t>
    [[nodiscard]] Number number() {
        Number value{};
        const auto taken = bytes(qsizetype{sizeof value});
        std::memcpy(&value, taken.constData(), static_cast<std::size_t>(taken.size()));
        return value;
    }

    /// From 0 to below `limit`, which is at most 256.
    [[nodiscard]] int below(std::size_t limit) {
        return static_cast<int>(number<std::uint8_t>() % limit);
    }

    [[nodiscard]] bool flag() { return (number<std::uint8_t>() & 1) != 0; }

    /// One of the values of an array.
    template <typename Values>
    [[nodiscard]] const auto& oneOf(const Values& values) {
        return values[static_cast<std::size_t>(below(std::size(values)))];
    }

    /// Fewer where there are not so many.
    [[nodiscard]] QByteArray bytes(qsizetype count) {
        QByteArray taken = m_rest.left(count);
        m_rest = m_rest.mid(taken.size());
        return taken;
    }

    [[nodiscard]] QByteArray rest() { return bytes(m_rest.size()); }

    /// Bytes with their number before them, which is at most 255.
    [[nodiscard]] QByteArray piece() { return bytes(number<std::uint8_t>()); }

    /// As text: UTF-8, or half of the time any units of UTF-16.
    [[nodiscard]] static QString text(const QByteArray& bytes, bool isUtf16) {
        if (!isUtf16)
            return QString::fromUtf8(bytes);
        QString text(bytes.size() / 2, Qt::Uninitialized);
        std::memcpy(text.data(), bytes.constData(), static_cast<std::size_t>(text.size()) * 2);
        return text;
    }

    [[nodiscard]] QString restAsText() {
        const bool isUtf16 = flag();
        return text(rest(), isUtf16);
    }

private:
    QByteArray m_rest;
};

} // namespace quorvane
