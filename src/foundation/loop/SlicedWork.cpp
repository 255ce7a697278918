// SPDX-License-Identifier: MIT
#include <loop/SlicedWork.h>

namespace quorvane {

SlicedWork::SlicedWork(MainQueue& queue, Step step, SteadyTime time)
    : m_state(std::make_shared<State>(State{queue, std::move(step), std::move(time)})) {
    scheduleSlice(m_state);
}

void SlicedWork::scheduleSlice(const std::shared_ptr<State>& state) {
    state->queue.async([weak = std::weak_ptr(state)] {
        const auto alive = weak.lock();
        if (alive && runSlice(*alive))
            scheduleSlice(alive);
    });
}

bool SlicedWork::runSlice(const State& state) {
    const auto end = state.time() + sliceLength;
    do {
        if (!state.step())
            return false;
    } while (state.time() < end);
    return true;
}

} // namespace quorvane
