// SPDX-License-Identifier: MIT
#pragma once

#include "../DelegateFixture.h"
#include "FaultPlan.h"
#include "FaultyFiles.h"

#include <settings/JsonDefaultsStore.h>

#include <QAbstractButton>

#include <memory>

namespace quorvane {

/// The program over fake services and a real folder of settings, where each call may fail.
class FaultFixture : public DelegateFixture {
protected:
    FaultFixture();
    ~FaultFixture() override;

    FaultFixture(const FaultFixture&) = delete;
    FaultFixture& operator=(const FaultFixture&) = delete;

    /// Makes the desktop anew, with this in the file of settings; the plan is empty.
    void begin(const QByteArray& settings);

    /// Makes the program on it, not launched yet.
    void makeProgram();

    /// Ends it, and clears away what it has left on the desktop.
    void end();

    [[nodiscard]] QString settingsFolder() const { return m_folder->path(); }

    [[nodiscard]] QString settingsFile() const { return m_folder->filePath(fileName); }

    /// Presses what assistive technology knows by this name, where it is to be seen.
    static void press(const QString& name, const QWidget* window);

    /// The control of the window that is called so; null where it does not show.
    [[nodiscard]] static QWidget*
    shown(const QWidget* window, QAccessible::Role role, const QString& name);

    FaultPlan plan;
    FakeWindowTraits* windowTraits = nullptr;

private:
    void makeServicesFaulty();

    static constexpr QLatin1StringView fileName{"defaults.json"};
    static constexpr QLatin1StringView placesName{"windows.json"};

    std::unique_ptr<QTemporaryDir> m_folder;
    FaultyFiles m_disk{plan};
    ImmediateSettingsWriter m_writer{m_disk};
    std::unique_ptr<JsonDefaultsStore> m_stored;
    std::unique_ptr<WindowFrameStore> m_places;
};

} // namespace quorvane
