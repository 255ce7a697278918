// SPDX-License-Identifier: MIT
#include "FontsReadAhead.h"

#include <fontconfig/fontconfig.h>

namespace quorvane {

// Where they cannot be read, Qt finds and says so.
FontsReadAhead::FontsReadAhead() : m_reading([] { static_cast<void>(FcInit()); }) {
}

void FontsReadAhead::finish() {
    if (m_reading.joinable())
        m_reading.join();
}

} // namespace quorvane
