// SPDX-License-Identifier: MIT
#pragma once

#include <platform/PasteboardContents.h>
#include <platform_offers/DataDevice.h>

#include <memory>
#include <optional>

namespace quorvane {

/// Where the contents of a clipboard are to be had: at hand, because they are ours or none, or from
/// who offers them.
struct OfferSource {
    std::optional<PasteboardItem> atHand;
    std::shared_ptr<DataOffer> offer; ///< never null where nothing is at hand
};

} // namespace quorvane
