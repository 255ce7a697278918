// SPDX-License-Identifier: MIT
#include <app/AppDelegate.h>
#include <app/Panel.h>
#include <app/PanelFrame.h>

#include <QCoreApplication>
#include <QLoggingCategory>
#include <QWindow>

#include <algorithm>
#include <array>
#include <utility>

namespace quorvane {

using namespace Qt::StringLiterals;

namespace {

Q_LOGGING_CATEGORY(lcApp, "quorvane.app", QtFatalMsg)

struct Action {
    QLatin1StringView name;
    void (AppDelegate::*perform)();
};

constexpr std::array actions{
    Action{"toggle"_L1, &AppDelegate::togglePresentation},
    Action{"insert"_L1, &AppDelegate::performInsert},
    Action{"copy"_L1, &AppDelegate::performCopy},
    Action{"preferences"_L1, &AppDelegate::showPreferences},
    Action{"quit"_L1, &AppDelegate::terminate},
};

} // namespace

QPointer<AppDelegate>& AppDelegate::_sharedDelegate() {
    static QPointer<AppDelegate> delegate;
    return delegate;
}

AppDelegate::AppDelegate(Environment environment)
    : m_environment(std::move(environment)),
      m_model(
          {m_environment.clock,
           m_environment.defaults,
           m_environment.currentZone,
           m_environment.zones,
           m_environment.locale}),
      m_inserter(
          {*m_environment.platform.accessibilityRight,
           *m_environment.platform.pasteboard,
           *m_environment.platform.keyPoster,
           m_environment.mainQueue}) {
}

AppDelegate::~AppDelegate() {
    m_environment.platform.workspace->onActiveSpaceChanged({});
    m_environment.platform.keyboardLayout->onChanged({});
}

void AppDelegate::applicationDidFinishLaunching() {
    _sharedDelegate() = this;
    applyActivationPolicy(m_model.showInDock());
    present();
    startHotKeyMonitor(m_model.hotKey());
    // The reaction runs after the change that caused it is complete.
    connect(&m_model, &DateTimeModel::showInDockWillChange, this, [this](bool visible) {
        m_environment.mainQueue.async([self = QPointer(this), visible] {
            if (self)
                self->applyShowInDock(visible);
        });
    });
    m_environment.platform.workspace->onActiveSpaceChanged([this] { activeSpaceDidChange(); });
    m_environment.platform.keyboardLayout->onChanged([this] {
        if (m_contentView)
            m_contentView->refreshSoon();
    });
}

void AppDelegate::togglePresentation() {
    if (isPanelVisible()) {
        orderOutPanel();
        return;
    }
    m_previousFrontmostApp = m_environment.platform.workspace->frontmostApplication();
    present();
}

void AppDelegate::performAction(const QString& name) {
    const auto* action = std::ranges::find(actions, name, &Action::name);
    if (action == actions.end())
        qCInfo(lcApp, "no action \"%ls\"", qUtf16Printable(name));
    else
        (this->*action->perform)();
}

void AppDelegate::terminate() {
    if (std::exchange(m_terminating, true))
        return;
    Q_EMIT willTerminate();
    if (m_panelFrame)
        m_panelFrame->saveNow();
    m_insertSteps.cancelAll();
    m_inserter.finish();
    m_environment.platform.pasteboard->handOver([] { QCoreApplication::quit(); });
}

PresentationMode AppDelegate::effectivePresentationMode() const {
    // There is no status item yet, so a popover has nothing to hang from.
    return PresentationMode::Window;
}

void AppDelegate::startHotKeyMonitor(HotKeyCombo combo) {
    m_hotKeyMonitor = HotKeyMonitor::create(
        combo,
        {*m_environment.platform.accessibilityRight,
         *m_environment.platform.eventTaps,
         m_environment.mainQueue});
    m_hotKeyMonitor->setOnTriggered([self = QPointer(this)] {
        if (self)
            self->togglePresentation();
    });
    m_hotKeyMonitor->start();
}

void AppDelegate::applyActivationPolicy(bool showInDock) {
    m_environment.platform.windowTraits->setActivationPolicy(
        showInDock ? ActivationPolicy::Regular : ActivationPolicy::Accessory);
}

void AppDelegate::applyShowInDock(bool visible) {
    applyActivationPolicy(visible);
    if (m_preferencesWindow && m_preferencesWindow->isVisible())
        m_preferencesWindow->raise();
    if (isPanelVisible())
        m_environment.platform.windowTraits->orderFront(*m_panel->windowHandle());
}

void AppDelegate::activeSpaceDidChange() {
    if (isPanelVisible())
        m_environment.platform.windowTraits->orderFront(*m_panel->windowHandle());
}

} // namespace quorvane
