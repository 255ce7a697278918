// SPDX-License-Identifier: MIT
#include "ShortcutPress.h"

#include <utility>

namespace quorvane {

namespace {

constexpr Seconds silenceAfterALostRelease(1);
constexpr Seconds silenceBetweenPresses(0.15);

} // namespace

bool ShortcutPress::begins(bool tellsRelease) {
    m_silence =
        m_queue.after(tellsRelease ? silenceAfterALostRelease : silenceBetweenPresses, [this] {
            m_isDown = false;
        });
    return !std::exchange(m_isDown, true);
}

void ShortcutPress::end() {
    m_silence.cancel();
    m_isDown = false;
}

} // namespace quorvane
