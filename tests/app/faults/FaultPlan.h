// SPDX-License-Identifier: MIT
#pragma once

#include <map>
#include <string>

namespace quorvane {

/// Which calls on the desktop and on the disk fail, and how often each was made. A call goes by its
/// seam and its own name: "KeyPoster::paste".
class FaultPlan {
public:
    /// Every time.
    static constexpr int always = -1;

    /// From now on this call fails the time with that number, counted from 0, or always.
    void fail(const std::string& call, int time);

    /// From now on nothing fails.
    void heal() { m_failing.clear(); }

    /// Notes that this call is made, and says whether it fails.
    [[nodiscard]] bool strikes(const std::string& call);

    /// How often each call was made since the beginning.
    [[nodiscard]] const std::map<std::string, int>& calls() const { return m_calls; }

    /// Nothing fails, and nothing was called.
    void clear();

private:
    std::string m_failing; ///< empty for none
    int m_time = always;
    std::map<std::string, int> m_calls;
};

} // namespace quorvane
