// SPDX-License-Identifier: MIT
#include <x11_appearance/XSettings.h>

#include <QtEndian>

#include <utility>

namespace quorvane {

using namespace Qt::StringLiterals;

namespace {

constexpr std::uint8_t leastSignificantFirst = 0;
constexpr std::uint8_t mostSignificantFirst = 1;

constexpr std::uint8_t integerType = 0;
constexpr std::uint8_t stringType = 1;
constexpr std::uint8_t colorType = 2;
constexpr qsizetype colorSize = 8;

constexpr qsizetype alignment = 4;

/// Takes values from the front. Once one is not there, nothing is, and isBroken().
class Reader {
public:
    explicit Reader(QByteArrayView bytes) : m_rest(bytes) {}

    [[nodiscard]] bool isBroken() const { return m_isBroken; }

    void setBigEndian(bool isBigEndian) { m_isBigEndian = isBigEndian; }

    QByteArrayView bytes(qsizetype count) {
        if (m_isBroken || count > m_rest.size()) {
            m_isBroken = true;
            return {};
        }
        const auto taken = m_rest.first(count);
        m_rest = m_rest.sliced(count);
        return taken;
    }

    template <typename T>
    T value() {
        const auto taken = bytes(sizeof(T));
        if (taken.isEmpty())
            return {};
        return m_isBigEndian ? qFromBigEndian<T>(taken.data()) : qFromLittleEndian<T>(taken.data());
    }

    /// With what fills it up to whole units. The length is 32 bits at most, so nothing overflows.
    QByteArrayView padded(qsizetype length) {
        const auto filled = (length + alignment - 1) / alignment * alignment;
        return bytes(filled).first(m_isBroken ? 0 : length);
    }

private:
    QByteArrayView m_rest;
    bool m_isBigEndian = false;
    bool m_isBroken = false;
};

} // namespace

std::optional<XSettings> XSettings::parse(QByteArrayView property) {
    Reader reader(property);
    const auto order = reader.value<std::uint8_t>();
    if (order != leastSignificantFirst && order != mostSignificantFirst)
        return std::nullopt;
    reader.setBigEndian(order == mostSignificantFirst);
    reader.bytes(3);
    reader.bytes(sizeof(std::uint32_t)); // the serial number
    auto count = reader.value<std::uint32_t>();
    XSettings settings;
    // A count that lies ends where the bytes end.
    for (; count > 0 && !reader.isBroken(); --count) {
        const auto type = reader.value<std::uint8_t>();
        reader.bytes(1);
        const auto name = QString::fromLatin1(reader.padded(reader.value<std::uint16_t>()));
        reader.bytes(sizeof(std::uint32_t)); // when it was last changed
        Value value;
        if (type == integerType)
            value = reader.value<std::int32_t>();
        else if (type == stringType)
            value = QString::fromUtf8(reader.padded(reader.value<std::uint32_t>()));
        else if (type == colorType)
            reader.bytes(colorSize);
        else
            return std::nullopt;
        settings.m_values.emplace(name, std::move(value));
    }
    return reader.isBroken() ? std::nullopt : std::optional(std::move(settings));
}

std::optional<QString> XSettings::text(const QString& name) const {
    const auto found = m_values.find(name);
    const auto* text = found == m_values.end() ? nullptr : std::get_if<QString>(&found->second);
    return text == nullptr ? std::nullopt : std::optional(*text);
}

std::optional<std::int32_t> XSettings::number(const QString& name) const {
    const auto found = m_values.find(name);
    const auto* number =
        found == m_values.end() ? nullptr : std::get_if<std::int32_t>(&found->second);
    return number == nullptr ? std::nullopt : std::optional(*number);
}

GtkSettings XSettings::gtkSettings() const {
    const auto flag = [this](const QString& name) {
        const auto value = number(name);
        return value ? std::optional(*value != 0) : std::nullopt;
    };
    return {
        .themeName = text(u"Net/ThemeName"_s),
        .prefersDarkTheme = flag(u"Gtk/ApplicationPreferDarkTheme"_s),
        .fontName = text(u"Gtk/FontName"_s),
        .animates = flag(u"Gtk/EnableAnimations"_s)};
}

} // namespace quorvane
