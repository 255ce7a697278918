// SPDX-License-Identifier: MIT
#pragma once

namespace quorvane {

/// What became of an insertion.
enum class InsertionOutcome {
    Posted,   ///< the paste keys are on their way
    NoRight,  ///< this process may not type; the pasteboard was not touched
    NoKeys,   ///< the text stands on the pasteboard for a while, but there are no keys to paste it
    NotTaken, ///< the pasteboard did not take the text
};

} // namespace quorvane
