// SPDX-License-Identifier: MIT
#include <platform/KeyCodes.h>

#include <QLoggingCategory>

#include <linux/input-event-codes.h>
#include <utility>
#include <wayland_kwin/KwinKeyPoster.h>

namespace quorvane {

namespace {

Q_LOGGING_CATEGORY(lcKeys, "quorvane.keys", QtFatalMsg)

constexpr std::uint16_t lastNamedKeyCode = 0x7F;

/// What the user may still hold: KWin tells nobody but the window that has the keyboard.
const std::vector<std::uint32_t> modifierKeys{
    KEY_LEFTSHIFT,
    KEY_RIGHTSHIFT,
    KEY_LEFTCTRL,
    KEY_RIGHTCTRL,
    KEY_LEFTALT,
    KEY_RIGHTALT,
    KEY_LEFTMETA,
    KEY_RIGHTMETA,
};

} // namespace

KwinKeyPoster::KwinKeyPoster(
    std::shared_ptr<KwinFakeInput> input,
    const KeyboardLayout& layout,
    std::function<QStringList()> namesInFront)
    : m_input(std::move(input)),
      m_layout(layout),
      m_namesInFront(std::move(namesInFront)) {
}

std::optional<PasteTarget> KwinKeyPoster::pasteTarget() const {
    if (!m_input->isAvailable())
        return std::nullopt;
    const auto names = m_namesInFront();
    qCDebug(lcKeys, "keys go to \"%ls\"", qUtf16Printable(names.join(u'/')));
    const auto wanted = pasteTargetFor(names);
    return keysOf(wanted.keys) ? wanted : withoutLatinV(wanted);
}

void KwinKeyPoster::paste(const PasteTarget& target, PostHandler done) {
    if (!m_input->isAvailable())
        return done(PostOutcome::Unavailable);
    const auto keys = keysOf(target.keys);
    if (!keys)
        return done(PostOutcome::NoSuchKey);
    // Not pressed again afterwards: they would stay down when the user lets go.
    m_input->tap(modifierKeys, *keys);
    done(PostOutcome::Posted);
}

std::optional<KwinKeyPoster::Keys> KwinKeyPoster::keysOf(PasteKeys keys) const {
    if (keys == PasteKeys::ShiftInsert)
        return Keys{KEY_LEFTSHIFT, KEY_INSERT};
    const auto v = latinV();
    if (!v)
        return std::nullopt;
    return keys == PasteKeys::ControlV ? Keys{KEY_LEFTCTRL, *v}
                                       : Keys{KEY_LEFTCTRL, KEY_LEFTSHIFT, *v};
}

std::optional<std::uint32_t> KwinKeyPoster::latinV() const {
    const auto typesV = [this](std::uint16_t keyCode) {
        return m_layout.characters(keyCode) == u"v";
    };
    if (!m_layout.characters(keycode::v) || typesV(keycode::v))
        return KEY_V;
    for (std::uint16_t keyCode = 0; keyCode <= lastNamedKeyCode; ++keyCode) {
        if (const auto evdev = evdevFromKeyCode(keyCode); evdev && typesV(keyCode))
            return *evdev;
    }
    return std::nullopt;
}

} // namespace quorvane
