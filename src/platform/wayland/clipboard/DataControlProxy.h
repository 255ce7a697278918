// SPDX-License-Identifier: MIT
#pragma once

#include <memory>

namespace quorvane {

template <typename Protocol>
struct DataControlDestroyer {
    template <typename Proxy>
    void operator()(Proxy* proxy) const {
        Protocol::destroy(proxy);
    }
};

template <typename Protocol, typename Proxy>
using DataControlProxy = std::unique_ptr<Proxy, DataControlDestroyer<Protocol>>;

} // namespace quorvane
