// SPDX-License-Identifier: MIT
#include "KGlobalAccel.h"
#include "KGlobalAccelTap.h"
#include "KdeKeys.h"

#include <platform_kglobalaccel/KGlobalAccelTapService.h>

#include <QDBusConnectionInterface>

#include <utility>

namespace quorvane {

bool KGlobalAccelTapService::isOffered(const QDBusConnection& bus) {
    // The bus itself answers, which was greeted before the application was made.
    const auto* daemon = bus.isConnected() ? bus.interface() : nullptr;
    return daemon != nullptr && daemon->isServiceRegistered(KGlobalAccel::serviceName.toString());
}

KGlobalAccelTapService::KGlobalAccelTapService(
    const QDBusConnection& bus, const KeyboardLayout& layout, const KeyChord& usual)
    : m_layout(layout),
      m_usual(usual),
      m_daemon(std::make_shared<KGlobalAccel>(bus)) {
}

TapResult KGlobalAccelTapService::createTap(TapHandlers handlers) {
    return std::make_unique<KGlobalAccelTap>(m_daemon, m_layout, m_usual, std::move(handlers));
}

} // namespace quorvane
