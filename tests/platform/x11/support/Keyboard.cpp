// SPDX-License-Identifier: MIT
#include "support/Keyboard.h"

#include <platform/KeyCodes.h>
#include <x11_server/XcbReply.h>
#include <x11_server/XcbRequests.h>

#include <QProcess>
#include <xcb/xcb.h>
#include <xcb/xinput.h>
#include <xcb/xtest.h>

#include <algorithm>
#include <string_view>

#define explicit explicit_
#include <xcb/xkb.h>
#undef explicit

namespace quorvane {

using namespace Qt::StringLiterals;

namespace {

constexpr int modifierCount = 8;

/// A list of layouts as setxkbmap takes it: their names in one list, their variants in another.
QStringList layoutArguments(const QString& layouts) {
    QStringList names;
    QStringList variants;
    for (const auto& layout : layouts.split(u',')) {
        names << layout.section(u'(', 0, 0);
        variants << layout.section(u'(', 1).chopped(layout.endsWith(u')') ? 1 : 0);
    }
    return {u"-layout"_s, names.join(u','), u"-variant"_s, variants.join(u',')};
}

} // namespace

Keyboard::Keyboard(Device device) : m_connection(xcb_connect(nullptr, nullptr)), m_device(device) {
    xcb_input_xi_query_version(m_connection, 2, 0);
    xcb_xkb_use_extension(m_connection, XCB_XKB_MAJOR_VERSION, XCB_XKB_MINOR_VERSION);
}

Keyboard::~Keyboard() {
    while (!m_down.empty())
        release(m_down.back());
    xcb_disconnect(m_connection);
}

void Keyboard::press(std::uint16_t evdevCode) {
    m_down.push_back(evdevCode);
    fake(XCB_KEY_PRESS, evdevCode);
}

void Keyboard::release(std::uint16_t evdevCode) {
    std::erase(m_down, evdevCode);
    fake(XCB_KEY_RELEASE, evdevCode);
}

void Keyboard::type(const std::vector<std::uint16_t>& evdevCodes) {
    for (const auto key : evdevCodes)
        press(key);
    for (auto key = evdevCodes.rbegin(); key != evdevCodes.rend(); ++key)
        release(*key);
}

std::uint16_t Keyboard::state() const {
    const XcbReply<xcb_query_pointer_reply_t> reply(xcb_query_pointer_reply(
        m_connection,
        xcb_query_pointer(
            m_connection, xcb_setup_roots_iterator(xcb_get_setup(m_connection)).data->root),
        nullptr));
    return reply ? reply->mask & 0xff : 0xffff;
}

void Keyboard::setLayout(const QString& layout, const QString& options) {
    // Options add up unless they are cleared first.
    auto arguments = layoutArguments(layout) << u"-option"_s << QString();
    if (!options.isEmpty())
        arguments << u"-option"_s << options;
    QProcess::execute(u"setxkbmap"_s, arguments);
}

void Keyboard::setLayoutOfHardware(const QString& layout) {
    QProcess::execute(
        u"setxkbmap"_s,
        QStringList{u"-device"_s, QString::number(physicalKeyboard())} << layoutArguments(layout));
}

void Keyboard::useGroup(std::uint8_t group) {
    xcb_xkb_latch_lock_state(m_connection, XCB_XKB_ID_USE_CORE_KBD, 0, 0, 1, group, 0, 0, 0);
    xcbrequests::waitForServer(m_connection);
}

void Keyboard::swapModifiers(std::size_t one, std::size_t other) {
    auto rows = modifierRows();
    std::swap(rows.at(one), rows.at(other));
    setModifierRows(rows);
}

void Keyboard::setModifierKey(std::size_t index, std::uint16_t evdevCode) {
    auto rows = modifierRows();
    rows.at(index).front() = static_cast<xcb_keycode_t>(evdevCode + evdevOffset);
    setModifierRows(rows);
}

Keyboard::ModifierRows Keyboard::modifierRows() const {
    const XcbReply<xcb_get_modifier_mapping_reply_t> map(xcb_get_modifier_mapping_reply(
        m_connection, xcb_get_modifier_mapping(m_connection), nullptr));
    const auto* keycodes = xcb_get_modifier_mapping_keycodes(map.get());
    ModifierRows rows;
    for (int row = 0; row < modifierCount; ++row, keycodes += map->keycodes_per_modifier)
        rows.emplace_back(keycodes, keycodes + map->keycodes_per_modifier);
    return rows;
}

void Keyboard::setModifierRows(const ModifierRows& rows) {
    std::vector<xcb_keycode_t> keycodes;
    for (const auto& row : rows)
        keycodes.insert(keycodes.end(), row.begin(), row.end());
    const auto width = static_cast<std::uint8_t>(rows.front().size());
    const XcbReply<xcb_set_modifier_mapping_reply_t> reply(xcb_set_modifier_mapping_reply(
        m_connection, xcb_set_modifier_mapping(m_connection, width, keycodes.data()), nullptr));
}

void Keyboard::fake(std::uint8_t coreEvent, std::uint16_t evdevCode) {
    auto event = coreEvent;
    std::uint8_t device = 0;
    if (m_device == Device::Physical) {
        // The X Input extension counts its events in the order of the core ones.
        const auto first = xcb_get_extension_data(m_connection, &xcb_input_id)->first_event;
        event = static_cast<std::uint8_t>(
            first + XCB_INPUT_DEVICE_KEY_PRESS + (coreEvent - XCB_KEY_PRESS));
        device = physicalKeyboard();
    }
    xcb_test_fake_input(
        m_connection,
        event,
        static_cast<std::uint8_t>(evdevCode + evdevOffset),
        XCB_CURRENT_TIME,
        XCB_WINDOW_NONE,
        0,
        0,
        device);
    xcbrequests::waitForServer(m_connection);
}

std::uint8_t Keyboard::physicalKeyboard() const {
    const XcbReply<xcb_input_xi_query_device_reply_t> reply(xcb_input_xi_query_device_reply(
        m_connection, xcb_input_xi_query_device(m_connection, XCB_INPUT_DEVICE_ALL), nullptr));
    for (auto device = xcb_input_xi_query_device_infos_iterator(reply.get()); device.rem > 0;
         xcb_input_xi_device_info_next(&device)) {
        const std::string_view name(
            xcb_input_xi_device_info_name(device.data),
            static_cast<std::size_t>(xcb_input_xi_device_info_name_length(device.data)));
        if (device.data->type == XCB_INPUT_DEVICE_TYPE_SLAVE_KEYBOARD &&
            name.find("XTEST") == std::string_view::npos)
            return static_cast<std::uint8_t>(device.data->deviceid);
    }
    return 0;
}

} // namespace quorvane
