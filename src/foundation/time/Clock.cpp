// SPDX-License-Identifier: MIT
#include <time/Clock.h>

#include <chrono>

namespace quorvane {

Instant SystemClock::now() const {
    return {Seconds(std::chrono::system_clock::now().time_since_epoch()).count()};
}

} // namespace quorvane
