// SPDX-License-Identifier: MIT
#include "FreedesktopApplication.h"

#include <utility>

namespace quorvane {

using namespace Qt::StringLiterals;

FreedesktopApplication::FreedesktopApplication(Start start, QObject* parent)
    : QDBusAbstractAdaptor(parent),
      m_startPending(start == Start::ByBus) {
}

void FreedesktopApplication::setReopenHandler(std::function<void()> handler) {
    m_reopen = std::move(handler);
}

void FreedesktopApplication::setActionHandler(std::function<void(const QString&)> handler) {
    m_action = std::move(handler);
}

void FreedesktopApplication::Activate(const QVariantMap&) {
    (void) takeStart();
    reopen();
}

// There are no documents; a desktop that opens one with us still gets the program to the front.
void FreedesktopApplication::Open(const QStringList&, const QVariantMap&) {
    (void) takeStart();
    reopen();
}

void FreedesktopApplication::ActivateAction(
    const QString& actionName, const QVariantList&, const QVariantMap&) {
    const bool isStart = takeStart();
    if (isStart && actionName == "toggle"_L1)
        reopen();
    else if (m_action)
        m_action(actionName);
}

bool FreedesktopApplication::takeStart() {
    return std::exchange(m_startPending, false);
}

void FreedesktopApplication::reopen() {
    if (m_reopen)
        m_reopen();
}

} // namespace quorvane
