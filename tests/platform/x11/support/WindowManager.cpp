// SPDX-License-Identifier: MIT
#include "support/WindowManager.h"

#include "support/WaitUntil.h"

namespace quorvane {

using namespace Qt::StringLiterals;

WindowManager::WindowManager()
    : m_connection(X11Connection::open()),
      m_windows(m_connection),
      m_probe(xcb_generate_id(m_connection->xcb())) {
    xcb_create_window(
        m_connection->xcb(),
        XCB_COPY_FROM_PARENT,
        m_probe,
        m_connection->root(),
        0,
        0,
        1,
        1,
        0,
        XCB_WINDOW_CLASS_INPUT_OUTPUT,
        XCB_COPY_FROM_PARENT,
        0,
        nullptr);
    m_process.setStandardErrorFile(QProcess::nullDevice());
    m_process.start(u"openbox"_s, {u"--sm-disable"_s});
    (void) waitUntil([this] { return isRunning(); });
}

WindowManager::~WindowManager() {
    m_process.terminate();
    m_process.waitForFinished();
    // The server cleans up after its clients at its leisure; the next window manager must not be
    // taken for running because of what this one left.
    (void) waitUntil([this] { return !m_windows.hasWindowManager(); });
}

bool WindowManager::isRunning() {
    if (!m_windows.hasWindowManager())
        return false;
    m_windows.requestOfManager(m_probe, "_NET_REQUEST_FRAME_EXTENTS", {});
    return !m_windows.values(m_probe, "_NET_FRAME_EXTENTS", XCB_ATOM_CARDINAL).empty();
}

bool WindowManager::showDesktop(std::uint32_t number) {
    const auto root = m_connection->root();
    m_windows.requestOfManager(root, "_NET_CURRENT_DESKTOP", {number, 0, 0, 0, 0});
    return waitUntil([this, root, number] {
        return m_windows.values(root, "_NET_CURRENT_DESKTOP", XCB_ATOM_CARDINAL) ==
               std::vector{number};
    });
}

} // namespace quorvane
