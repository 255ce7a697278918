// SPDX-License-Identifier: MIT
#include "AppDelegate.h"

#include "DesktopAction.h"
#include "MainMenu.h"

#include <delivery/CopyText.h>
#include <hotkey/ShortcutChord.h>
#include <panel/SparkleUpdater.h>

#include <QCoreApplication>
#include <QLoggingCategory>

#include <utility>

namespace quorvane {

namespace {

Q_LOGGING_CATEGORY(lcApp, "quorvane.app", QtFatalMsg)

} // namespace

QPointer<AppDelegate>& AppDelegate::_sharedDelegate() {
    static QPointer<AppDelegate> delegate;
    return delegate;
}

AppDelegate::AppDelegate(Dependencies dependencies)
    : m_dependencies(std::move(dependencies)),
      m_model(
          {m_dependencies.clock,
           m_dependencies.defaults,
           m_dependencies.currentZone,
           m_dependencies.zones,
           m_dependencies.locale}),
      m_trayIcon(
          {*m_dependencies.platform.statusBar,
           *m_dependencies.platform.appearance,
           m_dependencies.mainQueue},
          trayIconCallbacks()),
      m_previousFrontmostApp(*m_dependencies.platform.workspace),
      m_presentation(
          {m_model,
           m_trayIcon,
           m_previousFrontmostApp,
           m_dependencies.windowFrames,
           m_dependencies.mainQueue,
           *m_dependencies.platform.workspace,
           *m_dependencies.platform.windowTraits},
          interfaceCallbacks()),
      m_shortcut(
          {*m_dependencies.platform.accessibilityRight,
           *m_dependencies.platform.eventTaps,
           m_dependencies.mainQueue},
          {weakly(&AppDelegate::handleShortcut),
           [this] { shortcutDidChange(); },
           [this](HotKeyCombo combo) {
               m_model.setHotKey(combo);
               m_preferences.refreshSoon();
           }}),
      m_shortcutHint(
          {m_model,
           m_shortcut,
           *m_dependencies.platform.desktopShortcut,
           *m_dependencies.platform.keyboardLayout,
           m_dependencies.mainQueue},
          [this](const PanelHint& hint) { m_presentation.setHint(hint); }),
      m_preferences(
          {m_model,
           m_dependencies.zones,
           m_dependencies.mainQueue,
           m_dependencies.clock,
           m_dependencies.windowFrames,
           m_dependencies.platform,
           m_dependencies.environment},
          preferencesCallbacks()),
      m_dock({*m_dependencies.platform.windowTraits, m_preferences, m_presentation.panel()}),
      m_modelObserver(m_model, m_dependencies.mainQueue, modelCallbacks()),
      m_notice(
          {*m_dependencies.platform.notifications, *m_dependencies.platform.accessibilityRight},
          noticeCallbacks()),
      m_typingConsent(
          {*m_dependencies.platform.accessibilityRight, m_model},
          [this] { m_preferences.refreshSoon(); }),
      m_insertion(
          {*m_dependencies.platform.workspace,
           *m_dependencies.platform.accessibilityRight,
           m_typingConsent,
           *m_dependencies.platform.pasteboard,
           *m_dependencies.platform.keyPoster,
           m_dependencies.mainQueue},
          insertionCallbacks()),
      m_timeFollower(
          {*m_dependencies.platform.timeChanges,
           m_dependencies.mainQueue,
           m_dependencies.clock,
           m_dependencies.currentZone},
          [this] { refreshSoon(); }),
      m_hiddenStart(
          m_dependencies.mainQueue,
          {[this] { return isReachable(); },
           [this] {
               m_presentation.present();
           }}) {
}

AppDelegate::~AppDelegate() {
    m_dependencies.platform.workspace->onFrontmostChanged({});
    m_dependencies.platform.workspace->onActiveSpaceChanged({});
    m_dependencies.platform.windowTraits->onCompositingChanged({});
    m_dependencies.platform.keyboardLayout->onChanged({});
    m_dependencies.platform.desktopShortcut->onChanged([] {});
    m_dependencies.platform.desktopShortcut->onRebound([](const KeyChord&) {});
}

void AppDelegate::applicationDidFinishLaunching(Launch launch) {
    _sharedDelegate() = this;
    m_dock.applyActivationPolicy(m_model.showInDock());
    setupMainMenu();
    m_trayIcon.makeStatusItem();
    if (launch == Launch::Shown)
        m_presentation.present();
    m_shortcut.startHotKeyMonitor(m_model.hotKey());
    m_modelObserver.start();
    observeDesktop();
    m_shortcutHint.begin();
    if (launch == Launch::Hidden)
        startHidden();
}

void AppDelegate::startHidden() {
    // The icon's colours wait for it, whoever paints first and when.
    m_dependencies.mainQueue.async(weakly(&AppDelegate::prepareAfterFirstPaint));
    m_dependencies.mainQueue.async(weakly(&AppDelegate::makeReady));
    m_hiddenStart.begin();
}

void AppDelegate::makeReady() {
    m_presentation.makeReady();
}

bool AppDelegate::isReachable() const {
    return (m_model.showInMenuBar() && m_trayIcon.hasButton()) ||
           m_shortcut.activity() == ShortcutRecorder::Activity::Active ||
           m_dependencies.platform.desktopShortcut->bound();
}

void AppDelegate::surfaceMainUIForReopen() {
    m_shortcut.retry();
    m_presentation.surface();
}

void AppDelegate::renew() {
    m_hiddenStart.end();
    if (m_dependencies.zones.refresh())
        refreshSoon();
    m_model.renewDates();
}

void AppDelegate::renewHidden() {
    if (!m_presentation.isShown())
        renew();
}

void AppDelegate::performInsert() {
    renewHidden();
    const auto text = m_model.formattedOutput();
    m_presentation.rememberTarget();
    // Where nothing can be typed it copies, and some clipboards take a text only from the program
    // that has the keyboard.
    m_insertion.start(text, m_previousFrontmostApp.current());
    m_presentation.hide();
}

void AppDelegate::performCopy() {
    renewHidden();
    const auto text = m_model.formattedOutput();
    if (copyText(*m_dependencies.platform.pasteboard, text) == PutOutcome::Refused)
        qCInfo(lcApp, "not copied: the pasteboard does not take the text");
}

void AppDelegate::showPreferences() {
    showPreferences(PreferencesPlace::AsLeft);
}

void AppDelegate::showPreferences(PreferencesPlace place) {
    m_hiddenStart.end();
    m_shortcut.retry();
    const auto device = m_presentation.lastInput();
    m_presentation.hide();
    m_preferences.showWindow(device, place);
}

void AppDelegate::checkForUpdates() {
    // A popover has grabbed the keyboard, which the window that opens now needs.
    m_presentation.popover().close();
    auto& platform = m_dependencies.platform;
    auto* message = SparkleUpdater::shared().controller().checkForUpdates(
        *platform.softwareCentre, platform.installation);
    if (message != nullptr)
        platform.windowTraits->activate(*message);
}

void AppDelegate::handleShortcut() {
    // What became of the last insertion is told first: it goes with any change.
    if (m_notice.text().isEmpty())
        m_shortcutHint.notePress();
    togglePresentation();
}

void AppDelegate::performAction(const QString& name) {
    m_shortcut.retry();
    const auto* action = desktopAction(name);
    if (action != nullptr && action->perform == &AppDelegate::togglePresentation)
        m_shortcutHint.noteCall();
    if (action == nullptr)
        qCInfo(lcApp, "no action \"%ls\"", qUtf16Printable(name));
    else if (action->isDelivery && !m_model.isDeliverable())
        qCInfo(lcApp, "nothing to %ls: no zone is selected", qUtf16Printable(name));
    else
        (this->*action->perform)();
}

void AppDelegate::terminate() {
    if (std::exchange(m_terminating, true))
        return;
    Q_EMIT willTerminate();
    m_presentation.panel().saveFrameNow();
    m_preferences.saveFrameNow();
    m_insertion.finish([&pasteboard = *m_dependencies.platform.pasteboard] {
        pasteboard.handOver([] {
            // Not quit(), which asks each window first.
            QCoreApplication::exit();
        });
    });
}

void AppDelegate::setupMainMenu() {
    m_mainMenu = std::make_unique<MainMenu>(MainMenu::Callbacks{
        weakly(&AppDelegate::checkForUpdates), weakly(&AppDelegate::terminate)});
}

void AppDelegate::observeDesktop() {
    auto& platform = m_dependencies.platform;
    platform.workspace->onFrontmostChanged([this] {
        // The program that held the shortcut may be the one that has just gone.
        m_shortcut.retry();
        m_presentation.frontmostDidChange();
    });
    platform.workspace->onActiveSpaceChanged(
        [this] { m_presentation.panel().activeSpaceDidChange(); });
    platform.windowTraits->onCompositingChanged(
        [this] { m_presentation.panel().compositingDidChange(); });
    connect(&m_model, &DateTimeModel::userWillChange, &m_notice, &DeliveryNotice::clear);
    platform.keyboardLayout->onChanged([this] {
        refreshSoon();
        m_shortcutHint.refresh();
    });
    platform.desktopShortcut->onChanged([this] {
        // Presses come to us once the desktop has added the shortcut.
        m_shortcut.retry();
        shortcutDidChange();
    });
    platform.desktopShortcut->onRebound([this](const KeyChord& chord) { adoptShortcut(chord); });
}

/// The one that the user has chosen in the desktop's own settings, now or while we did not run.
void AppDelegate::adoptShortcut(const KeyChord& chord) {
    if (chordOf(m_model.hotKey()) == chord)
        return;
    const auto combo = comboOf(chord);
    m_model.setHotKey(combo);
    m_shortcut.change(combo);
    shortcutDidChange();
}

void AppDelegate::shortcutDidChange() {
    m_preferences.refreshSoon();
    m_shortcutHint.refresh();
}

void AppDelegate::refreshSoon() {
    m_presentation.refreshSoon();
    m_preferences.refreshSoon();
}

/// Does what the first opening of the interface need not wait for; once, though panel and popover
/// both report a first paint.
void AppDelegate::prepareAfterFirstPaint() {
    if (m_zoneWarmUp)
        return;
    m_dependencies.platform.appearance->read();
    m_dependencies.platform.keyPoster->prepare();
    m_trayIcon.lookInTheme();
    Q_EMIT hasPainted();
    m_zoneWarmUp = std::make_unique<ZoneWarmUp>(
        m_dependencies.mainQueue,
        m_dependencies.zones,
        m_dependencies.clock.now(),
        m_dependencies.locale);
}

} // namespace quorvane
