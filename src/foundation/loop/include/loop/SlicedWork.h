// SPDX-License-Identifier: MIT
#pragma once

#include <loop/MainQueue.h>

#include <chrono>
#include <functional>
#include <memory>

namespace quorvane {

/// Work that can wait, done in small steps between the iterations of the event loop, so that input
/// and painting never wait for it. Destroying it drops what is left.
class SlicedWork {
public:
    /// Takes one step; says whether there is another. Must not destroy the SlicedWork.
    using Step = std::function<bool()>;
    using SteadyTime = std::function<std::chrono::steady_clock::time_point()>;

    /// What one iteration of the event loop may take, but for the last step in it, which runs to
    /// its end.
    static constexpr std::chrono::milliseconds sliceLength{2};

    SlicedWork(MainQueue& queue, Step step, SteadyTime time = std::chrono::steady_clock::now);

private:
    struct State {
        MainQueue& queue;
        Step step;
        SteadyTime time;
    };

    static void scheduleSlice(const std::shared_ptr<State>& state);
    [[nodiscard]] static bool runSlice(const State& state);

    std::shared_ptr<State> m_state;
};

} // namespace quorvane
