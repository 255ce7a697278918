// SPDX-License-Identifier: MIT
#include "DelegateFixture.h"

#include <QPlainTextEdit>
#include <QTemporaryDir>

#include <filesystem>

namespace quorvane {
namespace {

using namespace Qt::StringLiterals;
namespace fs = std::filesystem;

/// Quorvane on zone data of the test's own, which has New York alone.
class NewZoneDataTest : public DelegateFixture {
protected:
    NewZoneDataTest() {
        fs::create_directory(folder() / "America");
        install("New_York");
        database = std::make_unique<ZoneDatabase>(m_folder.path());
        currentZone.set(*database->zone(u"America/New_York"_s));
        makeDelegate(*database);
        launch();
        pressShortcut();
    }

    // Zones and delegate look into the database.
    ~NewZoneDataTest() override { delegate.reset(); }

    /// Puts that city's law in force in New York.
    void install(const char* city) const {
        const auto place = folder() / "America/New_York";
        fs::copy_file(
            fs::path("/usr/share/zoneinfo/America") / city,
            place,
            fs::copy_options::overwrite_existing);
        // The clocks of file systems are coarse.
        const auto changed = folder() / "America";
        fs::last_write_time(changed, fs::last_write_time(changed) + std::chrono::hours(1));
    }

    [[nodiscard]] fs::path folder() const { return m_folder.path().toStdString(); }

    std::unique_ptr<ZoneDatabase> database;

private:
    QTemporaryDir m_folder;
};

TEST_F(NewZoneDataTest, AreUsedFromTheNextShowing) {
    install("Chicago");
    pressShortcut();
    queue.run();
    const auto* preview = panel()->findChild<QPlainTextEdit*>();
    EXPECT_TRUE(preview->toPlainText().contains(u"4:05 PM"_s))
        << preview->toPlainText().toStdString();
}

TEST_F(NewZoneDataTest, AreUsedByACopyWhileHidden) {
    install("Chicago");
    delegate->performCopy();
    // No name of New York's means this offset.
    EXPECT_EQ(pasteboard->contents(), plainText(u"March 9, 2024 at 4:05 PM GMT-6"_s));
}

} // namespace
} // namespace quorvane
