// SPDX-License-Identifier: MIT
#pragma once

#include <settings/Environment.h>

#include <chrono>
#include <memory>
#include <string_view>

namespace quorvane {

class WaylandConnection;

/// The Wayland compositor of the session, asked once what it offers: before Qt is there, because
/// the platform that Qt runs on depends on it. A build without Wayland finds none.
class Compositor {
public:
    enum class Answer {
        None,   ///< there is no compositor
        Silent, ///< it did not answer in time
        Offers
    };

    /// No compositor.
    Compositor();

    /// Waits for the answer, for `patience` at most.
    [[nodiscard]] static Compositor
    ask(const Environment& environment, std::chrono::milliseconds patience);

    ~Compositor();
    Compositor(Compositor&& other) noexcept;
    Compositor& operator=(Compositor&& other) noexcept;

    [[nodiscard]] Answer answer() const { return m_answer; }

    /// Whether it has globals of that interface; false without an answer.
    [[nodiscard]] bool offers(std::string_view interface) const;

    /// Null without an answer.
    [[nodiscard]] const std::shared_ptr<WaylandConnection>& connection() const {
        return m_connection;
    }

private:
    Answer m_answer = Answer::None;
    std::shared_ptr<WaylandConnection> m_connection;
};

} // namespace quorvane
