// SPDX-License-Identifier: MIT
#include "PanelPresentation.h"

#include <app/Panel.h>
#include <controls/FocusRing.h>

#include <QWindow>

#include <utility>

namespace quorvane {

PanelPresentation::PanelPresentation(Dependencies dependencies, InterfaceCallbacks callbacks)
    : m_dependencies(dependencies),
      m_callbacks(std::move(callbacks)) {
}

PanelPresentation::~PanelPresentation() = default;

void PanelPresentation::setupPanel() {
    if (m_panel)
        return;
    m_view = m_callbacks.makeContentView().release();
    m_panel = std::make_unique<Panel>(m_view);
    m_callbacks.attachMainMenu(*m_panel);
    m_frame = std::make_unique<PanelFrame>(
        *m_panel,
        PanelFrame::Dependencies{
            m_dependencies.windowFrames,
            m_dependencies.mainQueue,
            m_dependencies.workspace,
            m_dependencies.windowTraits});
    QObject::connect(
        m_panel.get(), &Panel::frameChanged, m_panel.get(), [this] { announceShadow(); });
    QObject::connect(
        m_panel.get(),
        &Panel::painted,
        m_panel.get(),
        m_callbacks.onFirstPaint,
        static_cast<Qt::ConnectionType>(Qt::QueuedConnection | Qt::SingleShotConnection));
}

void PanelPresentation::makeReady() {
    setupPanel();
    applyBackground();
    m_panel->winId();
    // Fonts, letters and symbols are kept once they have been painted.
    m_panel->grab();
}

void PanelPresentation::show(InputDevice device) {
    setupPanel();
    if (!m_panel->isVisible()) {
        applyBackground();
        FocusRing::of(*m_panel)->setLastInput(device);
    }
    m_frame->place();
    m_panel->winId();
    announceShadow();
    auto& traits = m_dependencies.windowTraits;
    traits.preparePanel(*m_panel->windowHandle());
    m_panel->show();
    m_panel->raise();
    traits.presentPanel(*m_panel->windowHandle());
}

void PanelPresentation::hide() {
    if (m_panel)
        m_panel->hide();
}

void PanelPresentation::applyBackground() {
    using Background = Panel::Background;
    const bool isComposited = m_dependencies.windowTraits.isComposited();
    m_frame->setBackground(isComposited ? Background::Composited : Background::Plain);
}

void PanelPresentation::announceShadow() {
    if (m_panel->testAttribute(Qt::WA_TranslucentBackground) && m_panel->windowHandle() != nullptr)
        m_dependencies.windowTraits.setShadow(*m_panel->windowHandle(), m_panel->shadow());
}

void PanelPresentation::compositingDidChange() {
    if (!isVisible())
        return;
    if (m_panel->testAttribute(Qt::WA_TranslucentBackground)) {
        applyBackground();
        announceShadow();
    } else if (m_panel->isActiveWindow()) {
        m_panel->hide();
        show(InputDevice::Pointer);
    }
}

void PanelPresentation::discard() {
    saveFrameNow();
    m_frame.reset();
    m_panel.reset();
}

void PanelPresentation::saveFrameNow() {
    if (m_frame)
        m_frame->saveNow();
}

void PanelPresentation::activeSpaceDidChange() {
    if (auto* window = visibleWindow())
        m_dependencies.windowTraits.orderFront(*window);
}

void PanelPresentation::refreshSoon() {
    if (m_view)
        m_view->refreshSoon();
}

bool PanelPresentation::isVisible() const {
    return m_panel && m_panel->isVisible();
}

QWindow* PanelPresentation::visibleWindow() const {
    return isVisible() ? m_panel->windowHandle() : nullptr;
}

} // namespace quorvane
