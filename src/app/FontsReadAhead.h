// SPDX-License-Identifier: MIT
#pragma once

#include <thread>

namespace quorvane {

/// Has fontconfig read its rules and caches on a thread of its own, while the main one connects to
/// the bus and asks the display. Qt would do it for the first text that it measures, and wait: 28
/// of a start's 150 million instructions, a tenth of its time. The thread knows nothing of ours,
/// and fontconfig guards its own.
///
/// To be made when the environment and the locale change no more: fontconfig reads both.
class FontsReadAhead final {
public:
    FontsReadAhead();

    /// Waits until they are read, so that Qt does not begin to read them once more beside; to be
    /// called before a text is measured.
    void finish();

private:
    std::jthread m_reading;
};

} // namespace quorvane
