// SPDX-License-Identifier: MIT
#include "FreedesktopApplication.h"

#include "PlatformData.h"

#include <utility>

namespace quorvane {

using namespace Qt::StringLiterals;

FreedesktopApplication::FreedesktopApplication(Start start, QObject* parent)
    : QDBusAbstractAdaptor(parent),
      m_startPending(start == Start::ByBus) {
}

void FreedesktopApplication::setReopenHandler(std::function<void(const ActivationToken&)> handler) {
    m_reopen = std::move(handler);
}

void FreedesktopApplication::setActionHandler(
    std::function<void(const QString&, const ActivationToken&)> handler) {
    m_action = std::move(handler);
}

void FreedesktopApplication::Activate(const QVariantMap& platformData) {
    (void) takeStart();
    reopen(platformData);
}

// There are no documents; a desktop that opens one with us still gets the program to the front.
void FreedesktopApplication::Open(const QStringList&, const QVariantMap& platformData) {
    (void) takeStart();
    reopen(platformData);
}

void FreedesktopApplication::ActivateAction(
    const QString& actionName, const QVariantList&, const QVariantMap& platformData) {
    const bool isStart = takeStart();
    if (isStart && actionName == "toggle"_L1)
        reopen(platformData);
    else if (m_action)
        m_action(actionName, tokenOf(platformData));
}

bool FreedesktopApplication::takeStart() {
    return std::exchange(m_startPending, false);
}

void FreedesktopApplication::reopen(const QVariantMap& platformData) {
    if (m_reopen)
        m_reopen(tokenOf(platformData));
}

} // namespace quorvane
