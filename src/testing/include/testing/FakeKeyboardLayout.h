// SPDX-License-Identifier: MIT
#pragma once

#include <platform/KeyboardLayout.h>

#include <map>

namespace quorvane {

/// A layout of the keys that the test names; all others type nothing.
class FakeKeyboardLayout final : public KeyboardLayout {
public:
    [[nodiscard]] std::optional<std::u16string> characters(std::uint16_t keyCode) const override {
        if (!m_available)
            return std::nullopt;
        const auto key = m_keys.find(keyCode);
        return key == m_keys.end() ? std::u16string() : key->second;
    }

    [[nodiscard]] std::optional<std::u16string>
    shiftedCharacters(std::uint16_t keyCode) const override {
        const auto key = m_shifted.find(keyCode);
        return key == m_shifted.end() ? std::nullopt : std::optional(key->second);
    }

    void onChanged(std::function<void()> handler) override { m_changed = std::move(handler); }

    void setKey(std::uint16_t keyCode, std::u16string characters) {
        m_keys.insert_or_assign(keyCode, std::move(characters));
        if (m_changed)
            m_changed();
    }

    void setShifted(std::uint16_t keyCode, std::u16string characters) {
        m_shifted.insert_or_assign(keyCode, std::move(characters));
    }

    void setAvailable(bool available) { m_available = available; }

private:
    std::map<std::uint16_t, std::u16string> m_keys;
    std::map<std::uint16_t, std::u16string> m_shifted;
    std::function<void()> m_changed;
    bool m_available = true;
};

} // namespace quorvane
