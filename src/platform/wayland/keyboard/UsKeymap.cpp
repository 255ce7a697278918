// SPDX-License-Identifier: MIT
#include <cstdlib>
#include <wayland_keyboard/UsKeymap.h>
#include <wayland_keyboard/Xkb.h>

namespace quorvane {

namespace {

// Compositors keep the names of the sections, which mean nothing to anybody.
const QByteArray sectionStart = "xkb_keycodes \"";
const QByteArray ownName = "quorvane";

QByteArray compiled() {
    const XkbContext context(xkb_context_new(XKB_CONTEXT_NO_ENVIRONMENT_NAMES));
    if (!context)
        return {};
    const xkb_rule_names names{
        .rules = "evdev", .model = "pc105", .layout = "us", .variant = "", .options = ""};
    const XkbKeymap keymap(
        xkb_keymap_new_from_names(context.get(), &names, XKB_KEYMAP_COMPILE_NO_FLAGS));
    if (!keymap)
        return {};
    const std::unique_ptr<char, decltype(&std::free)> text(
        xkb_keymap_get_as_string(keymap.get(), XKB_KEYMAP_FORMAT_TEXT_V1), &std::free);
    return text ? QByteArray(text.get()) : QByteArray();
}

} // namespace

QByteArray makeOwnKeymap() {
    auto text = compiled();
    const auto start = text.indexOf(sectionStart);
    const auto name = start + sectionStart.size();
    const auto end = start < 0 ? -1 : text.indexOf('"', name);
    if (end < 0)
        return {};
    return text.replace(name, end - name, ownName);
}

bool isOwnKeymap(const QByteArray& text) {
    return text.contains(sectionStart + ownName + '"');
}

} // namespace quorvane
