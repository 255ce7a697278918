// SPDX-License-Identifier: MIT
#pragma once

#include "../composition/Samples.h"

#include <model/DateTimeModel.h>
#include <settings/JsonDefaultsStore.h>
#include <testing/FixedClock.h>
#include <testing/FixedCurrentZone.h>
#include <testing/ImmediateSettingsWriter.h>
#include <testing/MemoryDefaults.h>

#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>

#include <memory>

namespace quorvane {

inline const auto favoritesKey = QStringLiteral("favoriteTZs");

/// A model over settings in memory or in a file, at a fixed moment, for a user in Kolkata.
class DateTimeModelTest : public testing::Test {
protected:
    [[nodiscard]] std::unique_ptr<DateTimeModel> makeModel() { return makeModel(m_defaults); }

    [[nodiscard]] std::unique_ptr<DateTimeModel> makeModel(DefaultsStore& defaults) {
        return std::make_unique<DateTimeModel>(DateTimeModel::Dependencies{
            m_clock, defaults, m_currentZone, m_zones, samples::locale("en_US")});
    }

    /// A model whose settings file held `json`.
    [[nodiscard]] std::unique_ptr<DateTimeModel> makeModelFrom(const QByteArray& json) {
        QFile file(m_folder.filePath(QStringLiteral("defaults.json")));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(json);
        file.close();
        m_stored = std::make_unique<JsonDefaultsStore>(file.fileName(), m_writer);
        return makeModel(*m_stored);
    }

    /// What the settings file holds now.
    [[nodiscard]] QByteArray storedJson() const {
        QFile file(m_folder.filePath(QStringLiteral("defaults.json")));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    FixedClock m_clock{samples::march9};
    FixedCurrentZone m_currentZone{samples::zone("Asia/Kolkata")};
    ZoneDatabase m_zones;
    MemoryDefaults m_defaults;
    std::unique_ptr<JsonDefaultsStore> m_stored;

private:
    QTemporaryDir m_folder;
    ImmediateSettingsWriter m_writer;
};

/// Of a first start, for that user.
inline const QStringList defaultFavorites{
    QStringLiteral("Asia/Kolkata"),
    QStringLiteral("America/Los_Angeles"),
    QStringLiteral("America/New_York"),
    QStringLiteral("Europe/London"),
    QStringLiteral("Europe/Berlin"),
    QStringLiteral("Asia/Tokyo"),
    QStringLiteral("Asia/Singapore"),
    QStringLiteral("Australia/Sydney")};

} // namespace quorvane
