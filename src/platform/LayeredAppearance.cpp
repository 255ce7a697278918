// SPDX-License-Identifier: MIT
#include <platform/LayeredAppearance.h>

#include <utility>

namespace quorvane {

namespace {

template <typename T>
void complete(std::optional<T>& value, const std::optional<T>& next) {
    if (!value)
        value = next;
}

} // namespace

LayeredAppearance::LayeredAppearance(Sources sources)
    : m_sources(std::move(sources)),
      m_told(current()) {
    for (const auto& source : m_sources)
        source->onChanged([this] { tellIfChanged(); });
}

LayeredAppearance::~LayeredAppearance() = default;

DesktopAppearance LayeredAppearance::current() const {
    DesktopAppearance all;
    for (const auto& source : m_sources) {
        const auto one = source->current();
        complete(all.scheme, one.scheme);
        complete(all.accent, one.accent);
        complete(all.font, one.font);
        all.wantsMoreContrast = all.wantsMoreContrast || one.wantsMoreContrast;
        all.wantsLessMotion = all.wantsLessMotion || one.wantsLessMotion;
    }
    return all;
}

void LayeredAppearance::read() {
    for (const auto& source : m_sources)
        source->read();
}

void LayeredAppearance::tellIfChanged() {
    const auto now = current();
    if (std::exchange(m_told, now) == now)
        return;
    const auto handler = m_changed;
    if (handler)
        handler();
}

} // namespace quorvane
