// SPDX-License-Identifier: MIT
#include <chrono>
#include <time/Clock.h>

namespace quorvane {

Instant SystemClock::now() const {
    return {Seconds(std::chrono::system_clock::now().time_since_epoch()).count()};
}

} // namespace quorvane
