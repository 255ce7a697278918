// SPDX-License-Identifier: MIT
#include "HiddenStart.h"

#include <utility>

namespace quorvane {

HiddenStart::HiddenStart(MainQueue& queue, Callbacks callbacks)
    : m_queue(queue),
      m_callbacks(std::move(callbacks)) {
}

void HiddenStart::begin() {
    m_lastMoment = m_queue.after(patience, [this] {
        if (!m_callbacks.isReachable())
            m_callbacks.show();
    });
}

} // namespace quorvane
