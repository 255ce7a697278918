// SPDX-License-Identifier: MIT
#include "X11ModifierMap.h"

#include <xkbcommon/xkbcommon-keysyms.h>

#include <algorithm>
#include <initializer_list>
#include <span>

namespace quorvane {

namespace {

// Shift, Lock and Control stand for themselves; the five after them for whatever their keys say.
constexpr std::size_t firstFreeRow = XCB_MAP_INDEX_1;

std::uint16_t modifierWithKey(
    const X11ModifierMap::Rows& rows,
    const X11ModifierMap::KeysymsOf& keysymsOf,
    std::initializer_list<xcb_keysym_t> keysymsByPreference) {
    for (const auto wanted : keysymsByPreference) {
        const auto produces = [&](xcb_keycode_t keycode) {
            return std::ranges::count(keysymsOf(keycode), wanted) > 0;
        };
        for (auto row = firstFreeRow; row < rows.size(); ++row) {
            if (std::ranges::any_of(rows[row], produces))
                return static_cast<std::uint16_t>(1U << row);
        }
    }
    return 0;
}

X11ModifierMap::Rows readRows(xcb_connection_t* connection) {
    X11ModifierMap::Rows rows;
    const XcbReply<xcb_get_modifier_mapping_reply_t> reply(
        xcb_get_modifier_mapping_reply(connection, xcb_get_modifier_mapping(connection), nullptr));
    if (!reply)
        return rows;
    const auto* keycodes = xcb_get_modifier_mapping_keycodes(reply.get());
    for (auto& row : rows) {
        for (int key = 0; key < reply->keycodes_per_modifier; ++key, ++keycodes) {
            if (*keycodes != 0)
                row.push_back(*keycodes);
        }
    }
    return rows;
}

} // namespace

X11ModifierMap::X11ModifierMap(const Rows& rows, const KeysymsOf& keysymsOf)
    : m_option(modifierWithKey(
          rows, keysymsOf, {XKB_KEY_Alt_L, XKB_KEY_Alt_R, XKB_KEY_Meta_L, XKB_KEY_Meta_R})),
      m_command(modifierWithKey(rows, keysymsOf, {XKB_KEY_Super_L, XKB_KEY_Super_R})),
      m_numLock(modifierWithKey(rows, keysymsOf, {XKB_KEY_Num_Lock})),
      m_scrollLock(modifierWithKey(rows, keysymsOf, {XKB_KEY_Scroll_Lock})) {
}

X11ModifierMap X11ModifierMap::read(const X11Connection& connection) {
    auto* xcb = connection.xcb();
    const auto* setup = xcb_get_setup(xcb);
    const auto first = setup->min_keycode;
    const auto count = static_cast<std::uint8_t>(setup->max_keycode - first + 1);
    const XcbReply<xcb_get_keyboard_mapping_reply_t> reply(
        xcb_get_keyboard_mapping_reply(xcb, xcb_get_keyboard_mapping(xcb, first, count), nullptr));
    if (!reply)
        return {};
    const std::size_t width = reply->keysyms_per_keycode;
    const std::span keysyms(xcb_get_keyboard_mapping_keysyms(reply.get()), count * width);
    return {readRows(xcb), [=](xcb_keycode_t keycode) {
                const auto ofKey = keysyms.subspan((keycode - first) * width, width);
                return std::vector<xcb_keysym_t>(ofKey.begin(), ofKey.end());
            }};
}

ModifierFlags X11ModifierMap::flagsOf(std::uint16_t state) const {
    const auto flag = [state](std::uint16_t mask, ModifierFlags ifSet) {
        return (state & mask) != 0 ? ifSet : modifier::none;
    };
    return flag(XCB_MOD_MASK_LOCK, modifier::capsLock) | flag(XCB_MOD_MASK_SHIFT, modifier::shift) |
           flag(XCB_MOD_MASK_CONTROL, modifier::control) | flag(m_option, modifier::option) |
           flag(m_command, modifier::command);
}

std::optional<std::uint16_t> X11ModifierMap::maskOf(ModifierFlags flags) const {
    const auto bits = [flags](ModifierFlags flag, std::uint16_t mask) -> std::uint16_t {
        return (flags & flag) == flag ? mask : std::uint16_t{0};
    };
    const auto mask = static_cast<std::uint16_t>(
        bits(modifier::shift, XCB_MOD_MASK_SHIFT) | bits(modifier::control, XCB_MOD_MASK_CONTROL) |
        bits(modifier::option, m_option) | bits(modifier::command, m_command));
    return flagsOf(mask) == (flags & modifier::counted) ? std::optional(mask) : std::nullopt;
}

std::vector<std::uint16_t> X11ModifierMap::withLocks(std::uint16_t mask) const {
    std::vector<std::uint16_t> masks{mask};
    for (const auto lock : {std::uint16_t{XCB_MOD_MASK_LOCK}, m_numLock, m_scrollLock}) {
        if (lock == 0)
            continue;
        for (std::size_t i = 0, count = masks.size(); i < count; ++i)
            masks.push_back(static_cast<std::uint16_t>(masks[i] | lock));
    }
    return masks;
}

} // namespace quorvane
