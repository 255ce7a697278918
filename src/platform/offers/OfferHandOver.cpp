// SPDX-License-Identifier: MIT
#include <platform_offers/OfferHandOver.h>

#include <utility>

namespace quorvane {

OfferHandOver::OfferHandOver(MainQueue& queue, PipeWriting& writing, std::function<void()> done)
    : m_writing(writing),
      m_done(std::move(done)),
      m_start(queue.after(
          longestStart,
          [this] {
              m_writing.onIdle([this] { finish(); });
              if (m_writing.isIdle())
                  finish();
          })),
      m_end(queue.after(longestWait, [this] { finish(); })) {
}

OfferHandOver::~OfferHandOver() {
    m_writing.onIdle([] {});
}

void OfferHandOver::finish() {
    m_writing.onIdle([] {});
    m_start.cancel();
    m_end.cancel();
    const auto done = std::move(m_done);
    done();
}

} // namespace quorvane
