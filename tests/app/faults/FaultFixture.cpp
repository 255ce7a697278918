// SPDX-License-Identifier: MIT
#include "FaultFixture.h"

#include "FaultyAccessibilityRight.h"
#include "FaultyAppearance.h"
#include "FaultyAutostart.h"
#include "FaultyDesktopShortcut.h"
#include "FaultyEventTapService.h"
#include "FaultyKeyPoster.h"
#include "FaultyKeyboardLayout.h"
#include "FaultyNotifications.h"
#include "FaultyPasteboard.h"
#include "FaultySoftwareCentre.h"
#include "FaultyStatusBar.h"
#include "FaultyTimeChanges.h"
#include "FaultyWindowTraits.h"
#include "FaultyWorkspace.h"

#include <support/WidgetSearch.h>

#include <QFile>

namespace quorvane {

namespace {

template <typename Faulty, typename Service>
void makeFaulty(std::unique_ptr<Service>& service, FaultPlan& plan) {
    service = std::make_unique<Faulty>(std::move(service), plan);
}

} // namespace

FaultFixture::FaultFixture() = default;

FaultFixture::~FaultFixture() {
    end();
}

void FaultFixture::begin(const QByteArray& settings) {
    end();
    makeDelegate();
    delegate.reset();
    makeServicesFaulty();
    m_folder = std::make_unique<QTemporaryDir>();
    QFile file(settingsFile());
    EXPECT_TRUE(file.open(QFile::WriteOnly) && file.write(settings) == settings.size());
    file.close();
    plan.clear();
    log.clear();
}

void FaultFixture::makeProgram() {
    m_stored = std::make_unique<JsonDefaultsStore>(settingsFile(), m_writer);
    m_places = std::make_unique<WindowFrameStore>(m_folder->filePath(placesName), m_writer);
    delegate = std::make_unique<AppDelegate>(AppDelegate::Dependencies{
        clock,
        *m_stored,
        *m_places,
        currentZone,
        zones,
        UserLocale::named(QStringLiteral("en_US")),
        queue,
        platform});
}

void FaultFixture::end() {
    plan.heal();
    delegate.reset();
    queue.run();
    m_places.reset();
    m_stored.reset();
    // What an update's message leaves.
    for (auto* window : QApplication::topLevelWidgets())
        window->close();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

void FaultFixture::makeServicesFaulty() {
    windowTraits = static_cast<FakeWindowTraits*>(platform.windowTraits.get());
    makeFaulty<FaultyAccessibilityRight>(platform.accessibilityRight, plan);
    makeFaulty<FaultyAppearance>(platform.appearance, plan);
    makeFaulty<FaultyAutostart>(platform.autostart, plan);
    makeFaulty<FaultyDesktopShortcut>(platform.desktopShortcut, plan);
    makeFaulty<FaultyEventTapService>(platform.eventTaps, plan);
    makeFaulty<FaultyKeyboardLayout>(platform.keyboardLayout, plan);
    makeFaulty<FaultySoftwareCentre>(platform.softwareCentre, plan);
    makeFaulty<FaultyStatusBar>(platform.statusBar, plan);
    makeFaulty<FaultyTimeChanges>(platform.timeChanges, plan);
    makeFaulty<FaultyWindowTraits>(platform.windowTraits, plan);
    makeFaulty<FaultyWorkspace>(platform.workspace, plan);
    platform.keyPoster =
        std::make_unique<FaultyKeyPoster>(std::move(platform.keyPoster), plan, queue);
    platform.notifications =
        std::make_unique<FaultyNotifications>(std::move(platform.notifications), plan, queue);
    platform.pasteboard.release(); // NOLINT(bugprone-unused-return-value): taken on below
    platform.pasteboard = std::make_unique<FaultyPasteboard>(
        std::unique_ptr<FakePasteboard>(pasteboard), plan, queue);
}

QWidget* FaultFixture::shown(const QWidget* window, QAccessible::Role role, const QString& name) {
    auto* widget = window != nullptr ? widgetByRole(*window, role, name) : nullptr;
    return widget != nullptr && widget->isVisible() ? widget : nullptr;
}

void FaultFixture::press(const QString& name, const QWidget* window) {
    for (const auto role : {QAccessible::Button, QAccessible::CheckBox}) {
        if (auto* button = qobject_cast<QAbstractButton*>(shown(window, role, name)))
            return button->click();
    }
}

} // namespace quorvane
