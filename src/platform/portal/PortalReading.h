// SPDX-License-Identifier: MIT
#pragma once

#include <loop/MainQueue.h>
#include <platform_offers/OfferReading.h>
#include <platform_offers/PipeReading.h>
#include <platform_portal/PortalDesktop.h>

#include <QDBusMessage>
#include <QObject>

#include <memory>

namespace quorvane {

/// One type of what another program has copied: asked for at the portal, which gives the end of a
/// pipe, and read from that.
class PortalReading final : public QObject, public OfferReading {
public:
    /// See PipeReading. Portal and queue must outlive it.
    PortalReading(
        PortalDesktop& portal,
        MainQueue& queue,
        const QDBusMessage& question,
        qsizetype mostBytes,
        PipeReading::Callbacks callbacks);

    PortalReading(const PortalReading&) = delete;
    PortalReading& operator=(const PortalReading&) = delete;

private:
    void begin(const QDBusMessage& answer);

    MainQueue& m_queue;
    qsizetype m_mostBytes;
    PipeReading::Callbacks m_callbacks;
    std::unique_ptr<PipeReading> m_reading;
    Deadline m_failure;
};

} // namespace quorvane
