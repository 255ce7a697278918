// SPDX-License-Identifier: MIT
#include "AppDelegate.h"

#include <app/Panel.h>
#include <delivery/CopyText.h>

#include <QLoggingCategory>

namespace quorvane {

namespace {

Q_LOGGING_CATEGORY(lcInsert, "quorvane.insert", QtFatalMsg)

// Time for the panel to be gone before the other application is asked to the front ...
constexpr Seconds activationDelay{0.08};
// ... and for that application to take the keyboard focus before the keys come.
constexpr Seconds pasteDelay{0.12};

} // namespace

void AppDelegate::performInsert() {
    const auto text = m_model.formattedOutput();
    hideInterface();
    m_insertSteps.run(m_environment.mainQueue, activationDelay, [this, text] {
        activatePreviousApplication();
        m_insertSteps.run(
            m_environment.mainQueue, pasteDelay, [this, text] { m_inserter.insert(text); });
    });
}

void AppDelegate::performCopy() {
    copyText(*m_environment.platform.pasteboard, m_model.formattedOutput());
}

void AppDelegate::activatePreviousApplication() {
    if (!m_previousFrontmostApp)
        return;
    const auto& application = *m_previousFrontmostApp;
    if (!m_environment.platform.workspace->activate(application))
        qCInfo(lcInsert, "%ls cannot be activated", qUtf16Printable(application.name));
}

} // namespace quorvane
