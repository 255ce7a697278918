// SPDX-License-Identifier: MIT
#include "DelegateFixture.h"

#include <loop/QtMainQueue.h>
#include <settings/JsonDefaultsStore.h>
#include <settings/ThreadSettingsWriter.h>
#include <testing/HangingFileWriter.h>

namespace quorvane {
namespace {

/// A delegate whose settings go to a disk that does not answer.
class HungDiskTest : public DelegateFixture {
protected:
    HungDiskTest() {
        delegate = std::make_unique<AppDelegate>(AppDelegate::Dependencies{
            clock,
            stored,
            frames(),
            currentZone,
            zones,
            UserLocale::named(QStringLiteral("en_US")),
            queue,
            platform});
    }

    ~HungDiskTest() override { disk.letGo(); }

    QTemporaryDir folder;
    HangingFileWriter disk;
    QtMainQueue outcomes;
    ThreadSettingsWriter writer{disk, outcomes};
    JsonDefaultsStore stored{folder.filePath(QStringLiteral("defaults.json")), writer};
};

TEST_F(HungDiskTest, ShortcutShowsAndHidesTheInterface) {
    launch();
    disk.awaitWriter();
    delegate->model().setHotKey(delegate->model().hotKey());
    delegate->model().setShowInDock(true);
    EXPECT_TRUE(isShown(panel()));
    pressShortcut();
    EXPECT_FALSE(isShown(panel()));
    pressShortcut();
    EXPECT_TRUE(isShown(panel()));
    EXPECT_EQ(disk.commits(), 0);
}

} // namespace
} // namespace quorvane
