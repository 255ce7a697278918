// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <xcb/xcb.h>

#include <cstdint>
#include <vector>

namespace quorvane {

/// The user at the keyboard of $DISPLAY. Keys are the kernel's codes (KEY_A and so on).
class Keyboard {
public:
    /// Through which of the server's keyboards the user types.
    enum class Device {
        Test,    ///< the one that XTEST requests without a device go to
        Physical ///< the one that stands for the hardware
    };

    explicit Keyboard(Device device = Device::Test);
    /// Lets go of all keys that are still down.
    ~Keyboard();

    Keyboard(const Keyboard&) = delete;
    Keyboard& operator=(const Keyboard&) = delete;

    void press(std::uint16_t evdevCode);
    void release(std::uint16_t evdevCode);
    /// Presses the keys in order and releases them in the opposite one.
    void type(const std::vector<std::uint16_t>& evdevCodes);

    /// The modifiers that the server takes for held or locked.
    [[nodiscard]] std::uint16_t state() const;

    /// A layout as keymaps name it, with its variant if it has one, such as "us(dvorak)"; several
    /// with commas.
    void setLayout(const QString& layout, const QString& options = {});
    /// For the hardware's keyboard alone, as the server has it for one that is plugged in later.
    void setLayoutOfHardware(const QString& layout);
    /// Of several layouts, the one in use, from 0.
    void useGroup(std::uint8_t group);

    /// Swaps the keys of two modifiers, by their index (Mod1 is 3).
    void swapModifiers(std::size_t one, std::size_t other);
    /// Makes a key act as a modifier that has none.
    void setModifierKey(std::size_t index, std::uint16_t evdevCode);

private:
    using ModifierRows = std::vector<std::vector<xcb_keycode_t>>;

    void fake(std::uint8_t coreEvent, std::uint16_t evdevCode);
    [[nodiscard]] std::uint8_t physicalKeyboard() const;
    [[nodiscard]] ModifierRows modifierRows() const;
    void setModifierRows(const ModifierRows& rows);

    xcb_connection_t* m_connection;
    Device m_device;
    std::vector<std::uint16_t> m_down;
};

} // namespace quorvane
