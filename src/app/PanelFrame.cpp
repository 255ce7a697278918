// SPDX-License-Identifier: MIT
#include <app/Panel.h>
#include <app/PanelFrame.h>
#include <app/PanelPlacement.h>

#include <QCursor>
#include <QGuiApplication>
#include <QScreen>

#include <algorithm>
#include <utility>

namespace quorvane {

using namespace Qt::StringLiterals;

namespace {

const auto frameName = u"PanelV2"_s;

// A drag moves the panel many times a second; the file is written once it rests.
constexpr Seconds saveDelay{0.5};

// More changes of height than this do not pass before the desktop reports the first of them.
constexpr std::size_t rememberedRequests = 8;

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

PanelFrame::PanelFrame(Panel& panel, Surroundings surroundings)
    : m_panel(panel),
      m_surroundings(surroundings) {
    connect(&panel, &Panel::fittingHeightChanged, this, &PanelFrame::fit);
    connect(&panel, &Panel::pointerLeft, this, &PanelFrame::fitOnceThePointerIsGone);
}

void PanelFrame::restore() {
    const auto stored = panelplacement::restored(m_surroundings.frames.frame(frameName));
    if (stored) {
        m_userHeight = stored->height();
        request(*stored);
        return;
    }
    const auto area = mainArea(m_surroundings.workspace);
    const QSize size(
        panelplacement::contentWidth,
        std::min(panelplacement::contentHeight(m_panel.fittingHeight()), area.height()));
    request(panelplacement::centred(size, area));
}

void PanelFrame::moveOntoScreen() {
    const auto frame = m_panel.geometry();
    if (!panelplacement::touchesAny(frame, availableAreas()))
        request(panelplacement::centred(frame.size(), mainArea(m_surroundings.workspace)));
}

void PanelFrame::follow() {
    connect(
        &m_panel, &Panel::frameChanged, this, &PanelFrame::noteChange, Qt::UniqueConnection);
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
    const auto area = areaAround(frame, m_surroundings.workspace);
    const int height = std::max(
        panelplacement::contentHeight(m_panel.fittingHeight()), m_userHeight.value_or(0));
    const auto fitting = panelplacement::resized(frame, height, area);
    // What the pointer is on stays under it: the part that does not fit scrolls for so long.
    m_heldInPlace = fitting.top() != frame.top() && m_panel.underMouse();
    request(m_heldInPlace ? panelplacement::resizedInPlace(frame, height, area) : fitting);
}

void PanelFrame::fitOnceThePointerIsGone() {
    if (m_heldInPlace)
        fit();
}

void PanelFrame::noteChange() {
    const auto frame = m_panel.geometry();
    if (std::ranges::count(m_requested, frame) > 0)
        return;
    if (frame.height() != m_requested.back().height())
        m_userHeight = frame.height();
    m_requested = {frame};
    m_saving = m_surroundings.queue.after(saveDelay, [this] { save(); });
}

void PanelFrame::save() {
    m_saving.reset();
    m_surroundings.frames.setFrame(frameName, m_panel.geometry());
}

} // namespace quorvane
