// SPDX-License-Identifier: MIT
#include <app/AppDelegate.h>
#include <app/Panel.h>
#include <app/PanelPlacement.h>

#include <QGuiApplication>
#include <QScreen>
#include <QWindow>

namespace quorvane {

using namespace Qt::StringLiterals;

namespace {

const auto panelFrameName = u"PanelV2"_s;

// A drag moves the panel many times a second; the file is written once it rests.
constexpr Seconds frameSaveDelay{0.5};

std::vector<QRect> availableAreas() {
    std::vector<QRect> areas;
    for (const auto* screen : QGuiApplication::screens())
        areas.push_back(screen->availableGeometry());
    return areas;
}

/// Of the screen where the user is: that of the focused window, else of the pointer.
QRect mainArea(const Workspace& workspace) {
    const auto* screen = workspace.focusedScreen();
    if (screen == nullptr)
        screen = QGuiApplication::screenAt(QCursor::pos());
    if (screen == nullptr)
        screen = QGuiApplication::primaryScreen();
    return screen->availableGeometry();
}

QRect areaAround(const QRect& frame, const Workspace& workspace) {
    const auto* screen = QGuiApplication::screenAt(frame.center());
    return screen != nullptr ? screen->availableGeometry() : mainArea(workspace);
}

} // namespace

bool AppDelegate::isPanelVisible() const {
    return m_panel && m_panel->isVisible();
}

std::unique_ptr<PopoverView> AppDelegate::makeContentView() {
    const auto weakly = [self = QPointer(this)](void (AppDelegate::*call)()) {
        return [self, call] {
            if (self)
                (self->*call)();
        };
    };
    return std::make_unique<PopoverView>(
        m_model,
        PopoverView::Services{
            *m_environment.platform.pasteboard,
            *m_environment.platform.keyboardLayout,
            m_environment.zones,
            m_environment.mainQueue,
            m_environment.clock,
            m_environment.currentZone,
            {[&traits = *m_environment.platform.windowTraits] {
                return traits.isComposited();
            }}},
        PopoverView::Callbacks{
            weakly(&AppDelegate::performInsert),
            weakly(&AppDelegate::showPreferences),
            weakly(&AppDelegate::orderOutPanel),
            weakly(&AppDelegate::terminate)});
}

void AppDelegate::present() {
    showPanel();
}

void AppDelegate::setupPanel() {
    if (m_panel)
        return;
    m_contentView = makeContentView().release();
    m_panel = std::make_unique<Panel>(m_contentView);
    const QSize size(
        panelplacement::contentWidth, panelplacement::contentHeight(m_panel->fittingHeight()));
    const auto restored =
        panelplacement::restored(m_environment.windowFrames.frame(panelFrameName));
    m_panel->setGeometry(
        restored ? *restored
                 : panelplacement::centred(size, mainArea(*m_environment.platform.workspace)));
    connect(m_panel.get(), &Panel::fittingHeightChanged, this, &AppDelegate::fitPanelHeight);
    connect(
        m_panel.get(),
        &Panel::painted,
        this,
        &AppDelegate::prepareAfterFirstPaint,
        static_cast<Qt::ConnectionType>(Qt::QueuedConnection | Qt::SingleShotConnection));
}

void AppDelegate::prepareAfterFirstPaint() {
    m_environment.platform.appearance->read();
    m_zoneWarmUp = std::make_unique<ZoneWarmUp>(
        m_environment.mainQueue,
        m_environment.zones,
        m_environment.clock.now(),
        m_environment.locale);
}

void AppDelegate::showPanel() {
    setupPanel();
    movePanelOntoScreen();
    m_panel->winId();
    auto& traits = *m_environment.platform.windowTraits;
    traits.preparePanel(*m_panel->windowHandle());
    m_panel->show();
    m_panel->raise();
    // Only now: the first place is ours, not the user's.
    connect(
        m_panel.get(),
        &Panel::frameChanged,
        this,
        &AppDelegate::savePanelFrameSoon,
        Qt::UniqueConnection);
    traits.presentPanel(*m_panel->windowHandle());
}

void AppDelegate::orderOutPanel() {
    if (m_panel)
        m_panel->hide();
}

void AppDelegate::fitPanelHeight() {
    const auto frame = m_panel->geometry();
    const int height = panelplacement::contentHeight(m_panel->fittingHeight());
    m_panel->setGeometry(panelplacement::resized(
        frame, height, areaAround(frame, *m_environment.platform.workspace)));
}

void AppDelegate::movePanelOntoScreen() {
    const auto frame = m_panel->geometry();
    if (!panelplacement::touchesAny(frame, availableAreas()))
        m_panel->setGeometry(
            panelplacement::centred(frame.size(), mainArea(*m_environment.platform.workspace)));
}

void AppDelegate::savePanelFrameSoon() {
    m_frameSave = m_environment.mainQueue.after(frameSaveDelay, [this] { savePanelFrame(); });
}

void AppDelegate::savePanelFrame() {
    m_frameSave.reset();
    m_environment.windowFrames.setFrame(panelFrameName, m_panel->geometry());
}

} // namespace quorvane
