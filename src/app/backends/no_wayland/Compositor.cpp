// SPDX-License-Identifier: MIT
#include <backends/Compositor.h>

namespace quorvane {

Compositor::Compositor() = default;
Compositor::~Compositor() = default;
Compositor::Compositor(Compositor&& other) noexcept = default;
Compositor& Compositor::operator=(Compositor&& other) noexcept = default;

Compositor Compositor::ask(const Environment& /*environment*/, std::chrono::milliseconds) {
    return {};
}

bool Compositor::offers(std::string_view /*interface*/) const {
    return false;
}

} // namespace quorvane
