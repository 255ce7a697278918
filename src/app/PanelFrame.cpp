// SPDX-License-Identifier: MIT
#include "PanelFrame.h"

#include "PanelPlacement.h"
#include "Screens.h"

#include <app/Panel.h>

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

} // namespace

PanelFrame::PanelFrame(Panel& panel, Dependencies dependencies)
    : m_panel(panel),
      m_dependencies(dependencies) {
    connect(&panel, &Panel::fittingHeightChanged, this, &PanelFrame::fit);
    connect(&panel, &Panel::pointerLeft, this, &PanelFrame::fitOnceThePointerIsGone);
    connect(qGuiApp, &QGuiApplication::screenRemoved, this, &PanelFrame::noteScreenGone);
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
        panelplacement::contentWidth,
        std::min(panelplacement::contentHeight(m_panel.fittingHeight()), area.height()));
    request(panelplacement::centred(size, area));
}

void PanelFrame::moveOntoScreen() {
    if (!panelplacement::touchesAny(m_panel.geometry(), screens::availableAreas()))
        centre();
}

void PanelFrame::follow() {
    connect(&m_panel, &Panel::frameChanged, this, &PanelFrame::noteChange, Qt::UniqueConnection);
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
    // What the pointer is on stays under it: the part that does not fit scrolls for so long.
    m_heldInPlace = fitting.top() != frame.top() && m_panel.underMouse();
    request(m_heldInPlace ? panelplacement::resizedInPlace(frame, height, area) : fitting);
}

void PanelFrame::fitOnceThePointerIsGone() {
    if (m_heldInPlace)
        fit();
}

void PanelFrame::noteScreenGone(QScreen* gone) {
    // What is hidden is looked after when it shows again.
    const bool isLost =
        m_panel.isVisible() &&
        !panelplacement::touchesAny(m_panel.geometry(), screens::availableAreas(gone));
    if (!isLost)
        return;
    // A window manager may by then have pulled a corner of it onto another screen.
    m_rescue = m_dependencies.queue.after(Seconds(0), [this] { centre(); });
}

void PanelFrame::centre() {
    const auto area = screens::mainScreen(m_dependencies.workspace).availableGeometry();
    request(panelplacement::centred(m_panel.size(), area));
}

void PanelFrame::noteChange() {
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
