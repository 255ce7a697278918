// SPDX-License-Identifier: MIT
#include "PanelFrame.h"

#include "PanelPlacement.h"
#include "Screens.h"

#include <app/Panel.h>
#include <panel/PanelMetrics.h>

#include <QGuiApplication>
#include <QScreen>

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
      m_dependencies(dependencies) {
    connect(&panel, &Panel::fittingHeightChanged, this, &PanelFrame::fit);
    connect(&panel, &Panel::pointerLeft, this, &PanelFrame::fitAfterPointerLeft);
    connect(qGuiApp, &QGuiApplication::screenRemoved, this, &PanelFrame::handleScreenRemoved);
}

void PanelFrame::restore() {
    const auto stored = panelplacement::restored(m_dependencies.frames.frame(frameName));
    if (stored) {
        m_userHeight = stored->height();
        request(*stored);
        return;
    }
    const auto area = screens::mainScreen(m_dependencies.workspace).availableGeometry();
    const QSize size(
        panelmetrics::width,
        std::min(panelplacement::contentHeight(m_panel.fittingHeight()), area.height()));
    request(panelplacement::centred(size, area));
}

void PanelFrame::moveOntoScreen() {
    if (!panelplacement::touchesAny(m_panel.geometry(), screens::availableAreas()))
        centre();
}

void PanelFrame::follow() {
    connect(
        &m_panel,
        &Panel::frameChanged,
        this,
        &PanelFrame::handleFrameChanged,
        Qt::UniqueConnection);
}

void PanelFrame::saveNow() {
    if (m_saving)
        save();
}

void PanelFrame::request(const QRect& frame) {
    m_requested.push_back(frame);
    if (m_requested.size() > rememberedRequests)
        m_requested.pop_front();
    m_panel.setGeometry(frame);
}

void PanelFrame::fit() {
    const auto frame = m_panel.geometry();
    const auto area =
        screens::screenAround(frame.center(), m_dependencies.workspace).availableGeometry();
    const int height =
        std::max(panelplacement::contentHeight(m_panel.fittingHeight()), m_userHeight.value_or(0));
    const auto fitting = panelplacement::resized(frame, height, area);
    // The control under the pointer must not move away from it. Until the pointer has left, what
    // does not fit scrolls.
    m_heldInPlace = fitting.top() != frame.top() && m_panel.underMouse();
    request(m_heldInPlace ? panelplacement::resizedInPlace(frame, height, area) : fitting);
}

void PanelFrame::fitAfterPointerLeft() {
    if (m_heldInPlace)
        fit();
}

void PanelFrame::handleScreenRemoved(QScreen* removed) {
    // A hidden panel is moved onto a screen when it shows again.
    const bool isLost =
        m_panel.isVisible() &&
        !panelplacement::touchesAny(m_panel.geometry(), screens::availableAreas(removed));
    if (!isLost)
        return;
    // Decided now: once the screens are updated, a window manager may have moved a corner of the
    // panel onto another one.
    m_recentring = m_dependencies.queue.after(Seconds(0), [this] { centre(); });
}

void PanelFrame::centre() {
    const auto area = screens::mainScreen(m_dependencies.workspace).availableGeometry();
    request(panelplacement::centred(m_panel.size(), area));
}

void PanelFrame::handleFrameChanged() {
    const auto frame = m_panel.geometry();
    if (std::ranges::count(m_requested, frame) > 0)
        return;
    if (frame.height() != m_requested.back().height())
        m_userHeight = frame.height();
    m_requested = {frame};
    m_saving = m_dependencies.queue.after(saveDelay, [this] { save(); });
}

void PanelFrame::save() {
    m_saving.reset();
    m_dependencies.frames.setFrame(frameName, m_panel.geometry());
}

} // namespace quorvane
