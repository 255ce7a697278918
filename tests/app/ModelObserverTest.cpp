// SPDX-License-Identifier: MIT
#include "ModelObserver.h"

#include <testing/FixedClock.h>
#include <testing/FixedCurrentZone.h>
#include <testing/MemoryDefaults.h>
#include <testing/VirtualMainQueue.h>

#include <gmock/gmock.h>

#include <memory>
#include <string>
#include <vector>

namespace quorvane {
namespace {

using namespace Qt::StringLiterals;
using testing::ElementsAre;
using testing::IsEmpty;

class ModelObserverTest : public testing::Test {
protected:
    VirtualMainQueue queue;
    ZoneDatabase zones;
    FixedClock clock{Instant{1710021900}};
    FixedCurrentZone currentZone{*zones.zone(u"America/New_York"_s)};
    MemoryDefaults defaults;
    DateTimeModel model{{clock, defaults, currentZone, zones, UserLocale::named(u"en_US"_s)}};
    std::vector<std::string> reports;
    std::unique_ptr<ModelObserver> observer = std::make_unique<ModelObserver>(
        model,
        queue,
        ModelObserver::Callbacks{
            [this](bool show) { reports.emplace_back(show ? "icon on" : "icon off"); },
            [this](PresentationMode mode) {
                reports.emplace_back(mode == PresentationMode::Popover ? "popover" : "window");
            },
            [this](bool show) {
                reports.emplace_back(show ? "dock on" : "dock off");
            }});
};

TEST_F(ModelObserverTest, StartReportsTheIconAlone) {
    observer->start();
    EXPECT_THAT(reports, IsEmpty());
    queue.run();
    EXPECT_THAT(reports, ElementsAre("icon on"));
}

TEST_F(ModelObserverTest, ChangesAreReportedInOrderOnALaterEventLoopIteration) {
    observer->start();
    queue.run();
    reports.clear();
    model.setShowInDock(true);
    model.setPresentationMode(PresentationMode::Popover);
    model.setShowInMenuBar(false);
    EXPECT_THAT(reports, IsEmpty());
    queue.run();
    EXPECT_THAT(reports, ElementsAre("dock on", "popover", "icon off"));
}

TEST_F(ModelObserverTest, NothingIsReportedBeforeTheStartOrAfterDestruction) {
    model.setShowInDock(true);
    queue.run();
    observer->start();
    model.setShowInDock(false);
    observer.reset();
    queue.run();
    EXPECT_THAT(reports, IsEmpty());
}

} // namespace
} // namespace quorvane
