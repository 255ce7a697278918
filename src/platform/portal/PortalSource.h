// SPDX-License-Identifier: MIT
#pragma once

#include <platform_offers/DataDevice.h>
#include <platform_portal/PortalClipboard.h>

#include <QPointer>
#include <QStringList>

#include <utility>

namespace quorvane {

/// What we offer through the portal.
class PortalSource final : public DataSource {
public:
    PortalSource(PortalClipboard& clipboard, QStringList types, Handlers handlers)
        : m_clipboard(&clipboard),
          m_types(std::move(types)),
          m_handlers(std::move(handlers)) {}

    ~PortalSource() override {
        if (m_clipboard)
            m_clipboard->forget(this);
    }

    PortalSource(const PortalSource&) = delete;
    PortalSource& operator=(const PortalSource&) = delete;

    [[nodiscard]] const QStringList& types() const { return m_types; }

    [[nodiscard]] const Handlers& handlers() const { return m_handlers; }

private:
    QPointer<PortalClipboard> m_clipboard;
    QStringList m_types;
    Handlers m_handlers;
};

} // namespace quorvane
