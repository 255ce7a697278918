// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <utility>

namespace quorvane {

/// Ends what a handler is called for when it goes.
class WaylandSubscription {
public:
    WaylandSubscription() = default;

    explicit WaylandSubscription(std::shared_ptr<void> handler) : m_handler(std::move(handler)) {}

private:
    std::shared_ptr<void> m_handler;
};

} // namespace quorvane
