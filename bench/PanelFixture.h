// SPDX-License-Identifier: MIT
#pragma once

#include <app/Panel.h>
#include <loop/QtMainQueue.h>
#include <model/DateTimeModel.h>
#include <testing/CallLog.h>
#include <testing/FakeKeyboardLayout.h>
#include <testing/FakePasteboard.h>
#include <testing/FixedClock.h>
#include <testing/FixedCurrentZone.h>
#include <testing/MemoryDefaults.h>
#include <testing/VirtualMainQueue.h>

#include <QStringList>

#include <memory>

namespace quorvane {

/// The panel with everything in it, on a desktop that only remembers what it is told.
class PanelFixture {
public:
    /// With these zones selected, which the system has to know.
    explicit PanelFixture(const QStringList& zones);

    [[nodiscard]] DateTimeModel& model() { return m_model; }

    [[nodiscard]] const ZoneDatabase& zones() const { return m_zones; }

    /// Once it is open.
    [[nodiscard]] Panel& panel() { return *m_panel; }

    /// Makes the panel and shows it, which paints nothing yet.
    void open();

private:
    QtMainQueue m_queue;
    VirtualMainQueue m_fakesQueue;
    CallLog m_log{m_fakesQueue};
    FakePasteboard m_pasteboard{m_log, m_fakesQueue};
    FakeKeyboardLayout m_layout;
    ZoneDatabase m_zones;
    FixedClock m_clock{Instant{1710021900}}; // 2024-03-09T22:05:00Z
    FixedCurrentZone m_currentZone{*m_zones.zone(QStringLiteral("America/New_York"))};
    MemoryDefaults m_defaults;
    DateTimeModel m_model{
        {m_clock, m_defaults, m_currentZone, m_zones, UserLocale::named(QStringLiteral("en_US"))}};
    std::unique_ptr<Panel> m_panel; ///< null until it is open
};

} // namespace quorvane
