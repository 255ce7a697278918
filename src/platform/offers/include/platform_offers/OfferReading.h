// SPDX-License-Identifier: MIT
#pragma once

namespace quorvane {

/// One type of an offer that is being read. Destroying it gives up.
class OfferReading {
public:
    virtual ~OfferReading() = default;
};

} // namespace quorvane
