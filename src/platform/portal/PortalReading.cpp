// SPDX-License-Identifier: MIT
#include "PortalReading.h"

#include "PortalFile.h"
#include "PortalLog.h"

#include <utility>

namespace quorvane {

PortalReading::PortalReading(
    PortalDesktop& portal,
    MainQueue& queue,
    const QDBusMessage& question,
    qsizetype mostBytes,
    PipeReading::Callbacks callbacks)
    : m_queue(queue),
      m_mostBytes(mostBytes),
      m_callbacks(std::move(callbacks)) {
    portal.ask(question, this, [this](const QDBusMessage& answer) { begin(answer); });
}

void PortalReading::begin(const QDBusMessage& answer) {
    const auto descriptor = portalfile::in(answer);
    if (descriptor) {
        m_reading = PipeReading::take(*descriptor, m_mostBytes, std::move(m_callbacks));
        return;
    }
    qCInfo(lcPortal, "the clipboard is not read: %ls", qUtf16Printable(answer.errorMessage()));
    // Later, as it may destroy this.
    m_failure =
        m_queue.after(Seconds(0), [done = std::move(m_callbacks.done)] { done(std::nullopt); });
}

} // namespace quorvane
