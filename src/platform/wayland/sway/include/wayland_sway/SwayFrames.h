// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>

#include <cstdint>
#include <optional>
#include <variant>

namespace quorvane {

/// The kinds of messages that are used here, as sway-ipc(7) numbers them.
enum class SwayKind : std::uint32_t {
    RunCommand = 0,
    GetWorkspaces = 1,
    Subscribe = 2,
    GetTree = 4,
    WorkspaceEvent = 0x80000000,
    WindowEvent = 0x80000003,
};

struct SwayMessage {
    std::uint32_t kind = 0; ///< a SwayKind, or one that is of no use here
    QByteArray payload;

    friend bool operator==(const SwayMessage&, const SwayMessage&) = default;
};

/// As it goes through the socket.
[[nodiscard]] QByteArray swayFrame(SwayKind kind, const QByteArray& payload);

/// What comes through the socket, in pieces of any size, cut into messages.
class SwayFrames {
public:
    void append(const QByteArray& piece);

    /// The next message that is whole.
    [[nodiscard]] std::optional<SwayMessage> next();

    /// Whether what came is no message, or a longer one than any that is waited for: nothing that
    /// follows can be understood.
    [[nodiscard]] bool isBroken() const { return m_isBroken; }

private:
    QByteArray m_received;
    bool m_isBroken = false;
};

} // namespace quorvane
