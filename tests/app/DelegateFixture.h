// SPDX-License-Identifier: MIT
#pragma once

#include "AppDelegate.h"

#include <app/Panel.h>
#include <testing/CallLog.h>
#include <testing/FakeAccessibilityRight.h>
#include <testing/FakeAppearance.h>
#include <testing/FakeAutostart.h>
#include <testing/FakeDesktopShortcut.h>
#include <testing/FakeEventTaps.h>
#include <testing/FakeKeyPoster.h>
#include <testing/FakeKeyboardLayout.h>
#include <testing/FakeNotifications.h>
#include <testing/FakePasteboard.h>
#include <testing/FakeSoftwareCentre.h>
#include <testing/FakeStartupNotification.h>
#include <testing/FakeStatusBar.h>
#include <testing/FakeTimeChanges.h>
#include <testing/FakeWindowTraits.h>
#include <testing/FakeWorkspace.h>
#include <testing/FixedClock.h>
#include <testing/FixedCurrentZone.h>
#include <testing/ImmediateSettingsWriter.h>
#include <testing/MemoryDefaults.h>

#include <QApplication>
#include <QTemporaryDir>
#include <gtest/gtest.h>

#include <memory>

namespace quorvane {

/// A delegate over fake services and a virtual clock, at 2024-03-09T22:05:00Z in New York.
class DelegateFixture : public testing::Test {
protected:
    static constexpr KeyPress shortcut{2, modifier::control | modifier::shift | modifier::command};

    DelegateFixture() { makeDelegate(); }

    // Pending triggers keep the monitor, which must not outlive its services.
    void TearDown() override {
        delegate.reset();
        queue.run();
    }

    void makeDelegate() { makeDelegate(zones); }

    void makeDelegate(ZoneDatabase& database) {
        delegate.reset();
        platform = makeFakes();
        m_frames = std::make_unique<WindowFrameStore>(
            m_folder.filePath(QStringLiteral("windows.json")), m_files);
        delegate = std::make_unique<AppDelegate>(AppDelegate::Dependencies{
            clock,
            defaults,
            *m_frames,
            currentZone,
            database,
            UserLocale::named(QStringLiteral("en_US")),
            queue,
            platform});
    }

    void launch() { delegate->applicationDidFinishLaunching(); }

    void pressShortcut() {
        EXPECT_EQ(taps->press(shortcut), TapVerdict::Swallow);
        taps->release();
        queue.run();
    }

    /// Launched, hidden, and called again while the application was in front.
    void showOver(const RunningApplication& application) {
        launch();
        pressShortcut();
        workspace->setFront(application);
        pressShortcut();
    }

    [[nodiscard]] std::chrono::milliseconds elapsed() const {
        return std::chrono::duration_cast<std::chrono::milliseconds>(queue.now());
    }

    /// What was asked of the desktop, in order.
    [[nodiscard]] std::vector<std::string> calls() const {
        std::vector<std::string> names;
        for (const auto& call : log.calls())
            names.push_back(call.what);
        return names;
    }

    [[nodiscard]] WindowFrameStore& frames() { return *m_frames; }

    [[nodiscard]] static QWidget* window(const QString& title, Qt::WindowType type) {
        for (auto* widget : QApplication::topLevelWidgets()) {
            if (widget->windowTitle() == title && widget->windowType() == type)
                return widget;
        }
        return nullptr;
    }

    [[nodiscard]] static QWidget* panel() { return window(QStringLiteral("Quorvane"), Qt::Tool); }

    [[nodiscard]] static QWidget* popover() {
        return window(QStringLiteral("Quorvane"), Qt::Popup);
    }

    [[nodiscard]] static QWidget* preferences() {
        return window(QStringLiteral("Quorvane Preferences"), Qt::Window);
    }

    [[nodiscard]] static bool isShown(const QWidget* window) {
        return window != nullptr && window->isVisible();
    }

    VirtualMainQueue queue;
    CallLog log{queue};
    ZoneDatabase zones;
    FixedClock clock{Instant{1710021900}};
    FixedCurrentZone currentZone{*zones.zone(QStringLiteral("America/New_York"))};
    MemoryDefaults defaults;
    FakeEventTaps* taps = nullptr;
    FakePasteboard* pasteboard = nullptr;
    FakeWorkspace* workspace = nullptr;
    FakeKeyboardLayout* keyboardLayout = nullptr;
    FakeStatusBar* statusBar = nullptr;
    FakeNotifications* notifications = nullptr;
    FakeAccessibilityRight* right = nullptr;
    FakeKeyPoster* keyPoster = nullptr;
    FakeDesktopShortcut* desktopShortcut = nullptr;
    FakeAppearance* appearance = nullptr;
    FakeTimeChanges* timeChanges = nullptr;
    FakeAutostart* autostart = nullptr;
    PlatformServices platform;
    std::unique_ptr<AppDelegate> delegate;

private:
    PlatformServices makeFakes() {
        auto eventTaps = std::make_unique<FakeEventTaps>(log);
        auto board = std::make_unique<FakePasteboard>(log, queue);
        auto space = std::make_unique<FakeWorkspace>(log);
        auto layout = std::make_unique<FakeKeyboardLayout>();
        taps = eventTaps.get();
        pasteboard = board.get();
        auto desktop = std::make_unique<FakeAppearance>();
        auto bar = std::make_unique<FakeStatusBar>(log);
        workspace = space.get();
        keyboardLayout = layout.get();
        appearance = desktop.get();
        statusBar = bar.get();
        auto centre = std::make_unique<FakeNotifications>(log, queue);
        auto permission = std::make_unique<FakeAccessibilityRight>(log);
        auto poster = std::make_unique<FakeKeyPoster>(log);
        auto changes = std::make_unique<FakeTimeChanges>();
        timeChanges = changes.get();
        auto login = std::make_unique<FakeAutostart>(log);
        autostart = login.get();
        notifications = centre.get();
        right = permission.get();
        keyPoster = poster.get();
        auto shortcutList = std::make_unique<FakeDesktopShortcut>(log);
        desktopShortcut = shortcutList.get();
        return {
            std::move(permission),
            std::move(eventTaps),
            std::move(shortcutList),
            std::move(poster),
            std::move(board),
            std::move(space),
            std::move(layout),
            std::make_unique<FakeWindowTraits>(log),
            std::make_unique<FakeStartupNotification>(log),
            std::move(desktop),
            std::move(centre),
            std::make_unique<FakeSoftwareCentre>(log),
            std::move(bar),
            std::move(changes),
            std::move(login),
            {Installation::Kind::DebianPackage},
            {}};
    }

    QTemporaryDir m_folder;
    ImmediateSettingsWriter m_files;
    std::unique_ptr<WindowFrameStore> m_frames;
};

} // namespace quorvane
