// SPDX-License-Identifier: MIT
#include "AppDelegate.h"

#include "MainMenu.h"
#include "PanelFrame.h"
#include "PreferencesWindow.h"
#include "StatusPopover.h"

#include <app/Panel.h>
#include <preferences/PreferencesView.h>

#include <QCoreApplication>
#include <QEvent>
#include <QGuiApplication>
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
      m_popoverAnchor(*m_environment.platform.workspace),
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
    qGuiApp->installEventFilter(this);
    applyActivationPolicy(m_model.showInDock());
    setupMainMenu();
    makeStatusItem();
    present();
    startHotKeyMonitor(m_model.hotKey());
    observeModel();
    observeDesktop();
}

bool AppDelegate::eventFilter(QObject* watched, QEvent* event) {
    // Dark and light come and go with the desktop's.
    if (watched == qGuiApp && event->type() == QEvent::ApplicationPaletteChange)
        applyIconImage();
    return QObject::eventFilter(watched, event);
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
    m_environment.platform.pasteboard->handOver([] {
        // Not quit(), which asks each window first.
        QCoreApplication::exit();
    });
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

/// A slot that runs the reaction on a later turn, when the change that caused it is complete.
template <typename Value>
auto AppDelegate::deferred(void (AppDelegate::*reaction)(Value)) {
    return [this, reaction](Value value) {
        m_environment.mainQueue.async([self = QPointer(this), reaction, value] {
            if (self)
                (self->*reaction)(value);
        });
    };
}

void AppDelegate::observeModel() {
    const auto applyShowInMenuBarLater = deferred(&AppDelegate::applyShowInMenuBar);
    connect(&m_model, &DateTimeModel::showInMenuBarWillChange, this, applyShowInMenuBarLater);
    // The value that is there already counts as the first one.
    applyShowInMenuBarLater(m_model.showInMenuBar());
    connect(
        &m_model,
        &DateTimeModel::presentationModeWillChange,
        this,
        deferred(&AppDelegate::handlePresentationModeChange));
    connect(
        &m_model,
        &DateTimeModel::showInDockWillChange,
        this,
        deferred(&AppDelegate::applyShowInDock));
}

void AppDelegate::observeDesktop() {
    m_environment.platform.workspace->onActiveSpaceChanged([this] { activeSpaceDidChange(); });
    m_environment.platform.keyboardLayout->onChanged([this] { refreshKeyLabels(); });
}

void AppDelegate::applyActivationPolicy(bool showInDock) {
    m_environment.platform.windowTraits->setActivationPolicy(
        showInDock ? ActivationPolicy::Regular : ActivationPolicy::Accessory);
}

void AppDelegate::applyShowInDock(bool visible) {
    const bool hadPreferences = arePreferencesVisible();
    const bool hadPanel = isPanelVisible();
    applyActivationPolicy(visible);
    if (visible)
        activateApplication();
    auto& traits = *m_environment.platform.windowTraits;
    if (hadPreferences)
        traits.orderFront(*m_preferencesWindow->windowHandle());
    if (hadPanel)
        traits.orderFront(*m_panel->windowHandle());
}

void AppDelegate::activateApplication() {
    auto& traits = *m_environment.platform.windowTraits;
    if (arePreferencesVisible())
        traits.activate(*m_preferencesWindow->windowHandle());
    else if (isPanelVisible())
        traits.activate(*m_panel->windowHandle());
}

void AppDelegate::refreshKeyLabels() {
    for (auto* interface : std::initializer_list<QWidget*>{m_panel.get(), m_popover.get()}) {
        if (interface != nullptr)
            interface->findChild<PopoverView*>()->refreshSoon();
    }
    if (m_preferencesView)
        m_preferencesView->refreshSoon();
}

} // namespace quorvane
