// SPDX-License-Identifier: MIT
#include "PanelFrame.h"

#include "PanelPlacement.h"
#include "Screens.h"

#include <panel/PanelMetrics.h>

#include <QGuiApplication>
#include <QScreen>
#include <QSignalBlocker>
#include <QWindow>

#include <algorithm>
#include <utility>

namespace quorvane {

using namespace Qt::StringLiterals;

namespace {

const auto frameName = u"PanelV2"_s;

// A drag moves the panel many times a second; the file is written when it has stopped.
constexpr Seconds saveDelay{0.5};

// The window manager reports a frame some time after it was requested; until then others may have
// been requested.
constexpr std::size_t rememberedRequests = 8;

} // namespace

PanelFrame::PanelFrame(Panel& panel, Dependencies dependencies)
    : m_panel(panel),
      m_dependencies(dependencies),
      m_userMoves(panel, dependencies.queue, dependencies.windowTraits),
      m_contentHeight(panelplacement::contentHeight(panel.fittingHeight())),
      m_height(m_contentHeight) {
    if (const auto stored = dependencies.frames.frame(frameName)) {
        m_usersHeight = panelplacement::storedHeight(*stored);
        m_height = m_usersHeight.value_or(m_contentHeight);
        m_usersFrame = QRect(stored->topLeft(), QSize(panelmetrics::width, m_height));
    }
    connect(&panel, &Panel::fittingHeightChanged, this, &PanelFrame::fit);
    connect(&panel, &Panel::painted, this, [this] { m_isUnseen = false; });
    connect(&panel, &Panel::pointerLeft, this, &PanelFrame::fitAfterPointerLeft);
    connect(&panel, &Panel::frameChanged, this, &PanelFrame::handleFrameChanged);
    connect(&panel, &Panel::dragged, this, &PanelFrame::startMove);
    connect(qGuiApp, &QGuiApplication::screenRemoved, this, &PanelFrame::handleScreenRemoved);
    connect(&m_screens, &ScreenChanges::changed, this, &PanelFrame::handleScreensChanged);
}

void PanelFrame::place() {
    if (m_panel.isVisible()) {
        handleScreensChanged();
        return;
    }
    m_hasAskedAgain = false;
    m_requested.clear();
    m_isUnseen = true;
    m_home = homeFrame();
    goHome();
}

void PanelFrame::goHome() {
    m_heldInPlace = false;
    request(panelplacement::resized(m_home, wantedHeight(), homeArea()));
}

QRect PanelFrame::homeArea() const {
    return screens::screenAround(m_home.center(), m_dependencies.workspace).availableGeometry();
}

QRect PanelFrame::homeFrame() {
    if (m_usersFrame && panelplacement::touchesAny(*m_usersFrame, screens::availableAreas()))
        return *m_usersFrame;
    const auto area = screens::mainScreen(m_dependencies.workspace).availableGeometry();
    return panelplacement::centred(
        {panelmetrics::width, std::min(wantedHeight(), area.height())}, area);
}

int PanelFrame::wantedHeight() {
    const int needed = panelplacement::contentHeight(m_panel.fittingHeight());
    if (std::exchange(m_contentHeight, needed) != needed)
        m_height = std::max(needed, m_usersHeight.value_or(0));
    return m_height;
}

void PanelFrame::setBackground(Panel::Background background) {
    const auto frame = m_panel.frame();
    {
        // Margins and size change one after the other.
        const QSignalBlocker blocker(&m_panel);
        m_panel.setBackground(background);
        m_panel.setFrame(frame);
    }
    request(frame);
}

void PanelFrame::saveNow() {
    if (m_saving)
        save();
}

void PanelFrame::request(const QRect& frame) {
    m_requested.push_back(frame);
    if (m_requested.size() > rememberedRequests)
        m_requested.pop_front();
    m_lastHeight = frame.height();
    m_userMoves.noteRequest();
    m_panel.setFrame(frame);
}

void PanelFrame::fit() {
    // The middle is that of what is seen first: a line for new users comes just after the show.
    if (m_isUnseen)
        m_home = homeFrame();
    const auto frame = m_panel.frame();
    const auto fitting = panelplacement::resized(m_home, wantedHeight(), homeArea());
    if (fitting.topLeft() == frame.topLeft() || !m_panel.underMouse()) {
        goHome();
        return;
    }
    // The control under the pointer must not move away from it. Until the pointer has left, what
    // does not fit scrolls.
    m_heldInPlace = true;
    request(panelplacement::resizedInPlace(frame, wantedHeight(), homeArea()));
}

void PanelFrame::fitAfterPointerLeft() {
    if (m_heldInPlace)
        fit();
}

void PanelFrame::handleScreenRemoved(QScreen* removed) {
    // A hidden panel is placed when it shows again.
    const bool isLost =
        m_panel.isVisible() &&
        !panelplacement::touchesAny(m_panel.frame(), screens::availableAreas(removed));
    if (!isLost)
        return;
    // Decided now: once the screens are updated, a window manager may have moved a corner of the
    // panel onto another one.
    m_recentring = m_dependencies.queue.after(Seconds(0), [this] { centre(); });
}

void PanelFrame::handleScreensChanged() {
    if (m_panel.isVisible() &&
        !panelplacement::touchesAny(m_panel.frame(), screens::availableAreas()))
        centre();
}

void PanelFrame::centre() {
    m_recentring.reset();
    const auto area = screens::mainScreen(m_dependencies.workspace).availableGeometry();
    m_home = panelplacement::centred(
        {panelmetrics::width, std::min(wantedHeight(), area.height())}, area);
    request(m_home);
}

void PanelFrame::startMove() {
    // The click may be over by now, and the panel would follow the pointer until the next one.
    const auto held = m_dependencies.windowTraits.heldInput();
    if (m_panel.windowHandle() == nullptr || (held && held->buttons == 0))
        return;
    m_heldInPlace = false;
    m_userMoves.begin();
    m_panel.windowHandle()->startSystemMove();
}

void PanelFrame::handleFrameChanged() {
    const auto frame = m_panel.frame();
    if (std::ranges::count(m_requested, frame) > 0)
        return;
    if (m_userMoves.causeOfChange() == UserMoves::Cause::User)
        takeOver(frame);
    else
        handleManagersChange(frame);
}

void PanelFrame::takeOver(const QRect& usersFrame) {
    const int height = usersFrame.height();
    if (std::exchange(m_lastHeight, height) != height && !isRequestedHeight(height))
        m_usersHeight = m_height = height;
    m_usersFrame = m_home = usersFrame;
    m_requested.clear();
    m_heldInPlace = false;
    m_asking.reset();
    if (m_dependencies.windowTraits.placesWindows())
        m_saving = m_dependencies.queue.after(saveDelay, [this] { save(); });
}

/// The user may move the panel before the window manager has answered a request.
bool PanelFrame::isRequestedHeight(int height) const {
    return std::ranges::any_of(
        m_requested, [height](const QRect& frame) { return frame.height() == height; });
}

void PanelFrame::handleManagersChange(const QRect& frame) {
    m_lastHeight = frame.height();
    // Later ones answer a request of ours, or changed screens.
    if (m_userMoves.hasSettled())
        return;
    if (std::exchange(m_hasAskedAgain, true))
        m_home.moveTopLeft(frame.topLeft());
    else
        m_asking = m_dependencies.queue.after(Seconds(0), [this] { goHome(); });
}

void PanelFrame::save() {
    m_saving.reset();
    m_dependencies.frames.setFrame(
        frameName, panelplacement::stored(m_usersFrame->topLeft(), m_usersHeight));
}

} // namespace quorvane
