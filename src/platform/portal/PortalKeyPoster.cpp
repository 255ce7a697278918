// SPDX-License-Identifier: MIT
#include "PortalLog.h"

#include <platform/AnsiKeys.h>
#include <platform/KeyCodes.h>
#include <platform_portal/PortalKeyPoster.h>

#include <algorithm>
#include <initializer_list>
#include <utility>

namespace quorvane {

using Move = PortalKeyboard::Move;

namespace {

std::initializer_list<std::uint32_t> keysOf(PasteKeys keys) {
    static constexpr std::initializer_list<std::uint32_t> controlV{
        keycode::leftControl, keycode::v};
    static constexpr std::initializer_list<std::uint32_t> controlShiftV{
        keycode::leftControl, keycode::leftShift, keycode::v};
    static constexpr std::initializer_list<std::uint32_t> shiftInsert{
        keycode::leftShift, keycode::insert};
    switch (keys) {
    case PasteKeys::ControlV:
        return controlV;
    case PasteKeys::ControlShiftV:
        return controlShiftV;
    case PasteKeys::ShiftInsert:
        break;
    }
    return shiftInsert;
}

/// Layouts without a v, such as Greek, have programs take the key at its place for it.
std::uint32_t keyTypingV(const KeyboardLayout& layout) {
    const auto keys = ansiKeys();
    const auto key = std::ranges::find_if(keys, [&layout](const AnsiKey& known) {
        return layout.characters(static_cast<std::uint16_t>(known.keyCode)) == u"v";
    });
    return key == keys.end() ? keycode::v : key->keyCode;
}

} // namespace

PortalKeyPoster::PortalKeyPoster(
    std::shared_ptr<PortalKeyboard> keyboard,
    MainQueue& queue,
    const KeyboardLayout& layout,
    ModifierHeld isModifierHeld)
    : m_keyboard(std::move(keyboard)),
      m_queue(queue),
      m_layout(layout),
      m_isModifierHeld(std::move(isModifierHeld)) {
}

PortalKeyPoster::~PortalKeyPoster() {
    releaseAll();
}

std::optional<PasteTarget> PortalKeyPoster::pasteTarget() const {
    if (m_keyboard->state() != TypingRight::Granted)
        return std::nullopt;
    if (m_keyboard->sharesClipboard())
        return PasteTarget{PasteKeys::ControlV, PasteSource::Clipboard};
    return PasteTarget{PasteKeys::ShiftInsert, PasteSource::Selection};
}

void PortalKeyPoster::paste(const PasteTarget& target, PostHandler done) {
    finish(PostOutcome::Unavailable);
    if (m_keyboard->state() != TypingRight::Granted)
        return done(PostOutcome::Unavailable);
    m_done = std::move(done);
    m_strokes = strokesOf(target.keys);
    m_isWanted = std::make_shared<const bool>(true);
    m_end = m_queue.after(patience, [this] { finish(PostOutcome::Unavailable); });
    begin(Seconds(0));
}

/// What the user holds joins in, and the portal has no way to lift it.
void PortalKeyPoster::begin(Seconds waited) {
    if (waited < longestWait && m_isModifierHeld())
        m_next = m_queue.after(gap, [this, waited] { begin(waited + gap); });
    else
        send(0);
}

void PortalKeyPoster::send(std::size_t index) {
    const auto stroke = m_strokes[index];
    note(stroke);
    m_keyboard->move(
        stroke.key, stroke.move, [this, index, wanted = std::weak_ptr(m_isWanted)](bool isTaken) {
            if (wanted.expired())
                return;
            if (!isTaken)
                finish(PostOutcome::Unavailable);
            else if (index + 1 == m_strokes.size())
                finish(PostOutcome::Posted);
            else
                m_next = m_queue.after(gap, [this, index] { send(index + 1); });
        });
}

void PortalKeyPoster::note(const Stroke& stroke) {
    if (stroke.move == Move::Down)
        m_down.push_back(stroke.key);
    else
        std::erase(m_down, stroke.key);
}

void PortalKeyPoster::finish(PostOutcome outcome) {
    m_isWanted.reset();
    m_next.cancel();
    m_end.cancel();
    releaseAll();
    if (const auto done = std::exchange(m_done, {}))
        done(outcome);
}

/// Also what was not answered: it may have been done.
void PortalKeyPoster::releaseAll() {
    while (!m_down.empty()) {
        const auto key = m_down.back();
        m_down.pop_back();
        m_keyboard->move(key, Move::Up, [](bool) {});
    }
}

std::vector<PortalKeyPoster::Stroke> PortalKeyPoster::strokesOf(PasteKeys keys) const {
    std::vector<Stroke> strokes;
    for (const auto code : keysOf(keys)) {
        const auto key = code == keycode::v ? keyTypingV(m_layout) : code;
        strokes.push_back({*evdevFromKeyCode(key), Move::Down});
    }
    for (auto pressed = strokes.size(); pressed > 0; --pressed)
        strokes.push_back({strokes[pressed - 1].key, Move::Up});
    return strokes;
}

} // namespace quorvane
