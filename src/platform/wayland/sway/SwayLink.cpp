// SPDX-License-Identifier: MIT
#include <QLoggingCategory>

#include <utility>
#include <wayland_sway/SwayLink.h>

namespace quorvane {

using namespace Qt::StringLiterals;

namespace {

Q_LOGGING_CATEGORY(lcSway, "quorvane.sway", QtFatalMsg)

} // namespace

std::shared_ptr<SwayLink> SwayLink::open(const QString& path) {
    std::shared_ptr<SwayLink> link(new SwayLink);
    auto* raw = link.get();
    link->m_socket = SwaySocket::open(
        path,
        {[raw](const QByteArray& piece) { raw->receive(piece); },
         [raw] {
             raw->m_isLost = true;
             qCInfo(lcSway, "sway has ended the connection");
         }});
    if (!link->m_socket)
        return nullptr;
    link->send(SwayKind::GetWorkspaces);
    link->send(SwayKind::Subscribe, u"[\"workspace\",\"window\"]"_s);
    return link;
}

SwayLink::~SwayLink() = default;

void SwayLink::command(const QString& text) {
    qCDebug(lcSway, "%ls", qUtf16Printable(text));
    send(SwayKind::RunCommand, text);
}

void SwayLink::askTree(TreeHandler done) {
    if (!isConnected())
        return;
    m_treeHandlers.push(std::move(done));
    send(SwayKind::GetTree);
}

void SwayLink::onWorkspaceFocus(std::function<void(const SwayWorkspaceFocus&)> handler) {
    m_workspaceFocus = std::move(handler);
}

void SwayLink::onNamedWindow(std::function<void(const SwayWindow&)> handler) {
    m_namedWindow = std::move(handler);
}

void SwayLink::receive(const QByteArray& piece) {
    m_frames.append(piece);
    while (const auto message = m_frames.next())
        handle(*message);
    if (m_frames.isBroken() && !std::exchange(m_isLost, true))
        qCInfo(lcSway, "what sway says cannot be understood: nothing more is asked");
}

void SwayLink::handle(const SwayMessage& message) {
    switch (static_cast<SwayKind>(message.kind)) {
    case SwayKind::RunCommand:
        qCDebug(lcSway, "%s", message.payload.constData());
        break;
    case SwayKind::GetWorkspaces:
        m_focusedOutput = focusedOutputIn(message.payload).value_or(m_focusedOutput);
        break;
    case SwayKind::GetTree:
        if (!m_treeHandlers.empty()) {
            const auto done = std::move(m_treeHandlers.front());
            m_treeHandlers.pop();
            done(message.payload);
        }
        break;
    case SwayKind::WorkspaceEvent:
        handleWorkspace(message.payload);
        break;
    case SwayKind::WindowEvent:
        if (const auto window = namedWindowIn(message.payload); window && m_namedWindow)
            m_namedWindow(*window);
        break;
    case SwayKind::Subscribe:
        break;
    }
}

void SwayLink::handleWorkspace(const QByteArray& payload) {
    const auto focus = workspaceFocusIn(payload);
    if (!focus)
        return;
    m_focusedOutput = focus->output;
    if (m_workspaceFocus)
        m_workspaceFocus(*focus);
}

void SwayLink::send(SwayKind kind, const QString& payload) {
    if (isConnected())
        m_socket->send(swayFrame(kind, payload.toUtf8()));
}

} // namespace quorvane
