// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QtEndian>

#include <cstdint>

namespace quorvane {

/// A settings manager's property, written by the words of XSETTINGS 0.5.
class SettingsBytes {
public:
    enum class Order : std::uint8_t { LeastSignificantFirst = 0, MostSignificantFirst = 1 };

    explicit SettingsBytes(Order order) : m_order(order) {}

    SettingsBytes& number(const QByteArray& name, std::int32_t value) {
        begin(0, name);
        put(value);
        return *this;
    }

    SettingsBytes& text(const QByteArray& name, const QByteArray& value) {
        begin(1, name);
        put(static_cast<std::uint32_t>(value.size()));
        putPadded(value);
        return *this;
    }

    SettingsBytes& color(const QByteArray& name) {
        begin(2, name);
        m_settings.append(8, '\x42');
        return *this;
    }

    [[nodiscard]] QByteArray bytes() const {
        SettingsBytes header(m_order);
        header.m_settings.append(static_cast<char>(m_order));
        header.m_settings.append(3, '\0');
        header.put(std::uint32_t{7}); // the serial number
        header.put(m_count);
        return header.m_settings + m_settings;
    }

private:
    void begin(std::uint8_t type, const QByteArray& name) {
        ++m_count;
        m_settings.append(static_cast<char>(type));
        m_settings.append('\0');
        put(static_cast<std::uint16_t>(name.size()));
        putPadded(name);
        put(std::uint32_t{7});
    }

    template <typename T>
    void put(T value) {
        const T ordered =
            m_order == Order::LeastSignificantFirst ? qToLittleEndian(value) : qToBigEndian(value);
        m_settings.append(reinterpret_cast<const char*>(&ordered), sizeof(T));
    }

    void putPadded(const QByteArray& text) {
        m_settings.append(text);
        m_settings.append((4 - text.size() % 4) % 4, '\0');
    }

    Order m_order;
    std::uint32_t m_count = 0;
    QByteArray m_settings;
};

} // namespace quorvane
