// SPDX-License-Identifier: MIT
#include "PreviousFrontmostApp.h"

namespace quorvane {

void PreviousFrontmostApp::remember() {
    m_hasGone = false;
    m_current = m_workspace.frontmostApplication();
}

void PreviousFrontmostApp::rememberUnlessGone() {
    const auto& application = m_current.application;
    m_hasGone = m_hasGone || (application && !m_workspace.isShown(*application));
    if (m_hasGone)
        m_current.application.reset();
    else
        m_current = m_workspace.frontmostApplication();
}

QString PreviousFrontmostApp::title() const {
    return m_current.application ? m_current.application->title : QString();
}

} // namespace quorvane
