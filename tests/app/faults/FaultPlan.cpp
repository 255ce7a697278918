// SPDX-License-Identifier: MIT
#include "FaultPlan.h"

namespace quorvane {

void FaultPlan::fail(const std::string& call, int time) {
    m_failing = call;
    m_time = time;
}

bool FaultPlan::strikes(const std::string& call) {
    const int time = m_calls[call]++;
    return call == m_failing && (m_time == always || m_time == time);
}

void FaultPlan::clear() {
    heal();
    m_calls.clear();
}

} // namespace quorvane
