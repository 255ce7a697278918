// SPDX-License-Identifier: MIT
#include "PreviousFrontmostApp.h"

#include <QLoggingCategory>

namespace quorvane {

namespace {

Q_LOGGING_CATEGORY(lcInsert, "quorvane.insert", QtFatalMsg)

} // namespace

void PreviousFrontmostApp::activate() {
    if (m_application && !m_workspace.activate(*m_application))
        qCInfo(lcInsert, "%ls cannot be activated", qUtf16Printable(m_application->name));
}

} // namespace quorvane
