// SPDX-License-Identifier: MIT
#pragma once

namespace quorvane {

/// Something that is being asked of a pasteboard. Destroying it gives up: its handler is not called
/// any more. The handler itself may destroy it.
class PasteboardRequest {
public:
    virtual ~PasteboardRequest() = default;
};

} // namespace quorvane
