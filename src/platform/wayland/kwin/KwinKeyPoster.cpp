// SPDX-License-Identifier: MIT
#include <platform/KeyCodes.h>

#include <QLoggingCategory>

#include <algorithm>
#include <linux/input-event-codes.h>
#include <utility>
#include <wayland_kwin/KwinKeyPoster.h>

namespace quorvane {

namespace {

Q_LOGGING_CATEGORY(lcKeys, "quorvane.keys", QtFatalMsg)

constexpr std::uint16_t lastNamedKeyCode = 0x7F;

/// What the user may still hold.
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

/// The modifiers that would change what these keys do.
std::vector<KwinModifiers::Modifier> strangersTo(const std::vector<std::uint32_t>& keys) {
    using enum KwinModifiers::Modifier;
    std::vector<KwinModifiers::Modifier> modifiers{Alt, Super, AltGr};
    if (std::ranges::count(keys, std::uint32_t{KEY_LEFTCTRL}) == 0)
        modifiers.push_back(Control);
    if (std::ranges::count(keys, std::uint32_t{KEY_LEFTSHIFT}) == 0)
        modifiers.push_back(Shift);
    return modifiers;
}

} // namespace

KwinKeyPoster::KwinKeyPoster(
    std::shared_ptr<KwinFakeInput> input,
    KwinModifiers modifiers,
    MainQueue& queue,
    const KeyboardLayout& layout,
    std::function<QStringList()> namesInFront)
    : m_input(std::move(input)),
      m_modifiers(std::move(modifiers)),
      m_queue(queue),
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
    finish(PostOutcome::Unavailable);
    const auto keys = keysOf(target.keys);
    if (!keys)
        return done(PostOutcome::NoSuchKey);
    m_done = std::move(done);
    m_end = m_queue.after(longestWait, [this] {
        qCInfo(lcKeys, "a modifier is held down: no keys are sent");
        finish(PostOutcome::Unavailable);
    });
    m_release = m_modifiers.whenReleased(strangersTo(*keys), [this, keys = *keys] { post(keys); });
}

void KwinKeyPoster::post(const Keys& keys) {
    if (!m_input->isAvailable())
        return finish(PostOutcome::Unavailable);
    // Not pressed again afterwards: they would stay down when the user lets go.
    m_input->tap(modifierKeys, keys);
    finish(PostOutcome::Posted);
}

void KwinKeyPoster::finish(PostOutcome outcome) {
    m_end.cancel();
    m_release = {};
    if (const auto done = std::exchange(m_done, {}))
        done(outcome);
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
