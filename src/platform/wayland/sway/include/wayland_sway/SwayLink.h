// SPDX-License-Identifier: MIT
#pragma once

#include <queue>

#include <functional>
#include <memory>
#include <wayland_sway/SwayFrames.h>
#include <wayland_sway/SwayReports.h>
#include <wayland_sway/SwaySocket.h>

namespace quorvane {

/// What sway tells and does beyond Wayland, by the socket that $SWAYSOCK names (sway-ipc(7)).
class SwayLink {
public:
    /// Null if nobody listens there.
    [[nodiscard]] static std::shared_ptr<SwayLink> open(const QString& path);

    SwayLink(const SwayLink&) = delete;
    SwayLink& operator=(const SwayLink&) = delete;
    ~SwayLink();

    /// Whether sway is still there.
    [[nodiscard]] bool isConnected() const { return m_socket != nullptr && !m_isLost; }

    /// Has sway do something, if it can.
    void command(const QString& text);

    using TreeHandler = std::function<void(const QByteArray& payload)>;

    /// Asks for all windows; `done` takes the answer to GetTree. Never called where none comes.
    void askTree(TreeHandler done);

    /// The screen that the user works on, by its name; empty until it is known.
    [[nodiscard]] const QString& focusedOutput() const { return m_focusedOutput; }

    // Each replaces an earlier handler.

    void onWorkspaceFocus(std::function<void(const SwayWorkspaceFocus&)> handler);
    void onNamedWindow(std::function<void(const SwayWindow&)> handler);

private:
    SwayLink() = default;

    void receive(const QByteArray& piece);
    void handle(const SwayMessage& message);
    void handleWorkspace(const QByteArray& payload);
    void send(SwayKind kind, const QString& payload = {});

    std::unique_ptr<SwaySocket> m_socket;
    bool m_isLost = false;
    SwayFrames m_frames;
    std::queue<TreeHandler> m_treeHandlers;
    QString m_focusedOutput;
    std::function<void(const SwayWorkspaceFocus&)> m_workspaceFocus;
    std::function<void(const SwayWindow&)> m_namedWindow;
};

} // namespace quorvane
