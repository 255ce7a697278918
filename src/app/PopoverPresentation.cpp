// SPDX-License-Identifier: MIT
#include "PopoverPresentation.h"

#include "StatusPopover.h"
#include "TrayIcon.h"

#include <controls/FocusRing.h>

#include <utility>

namespace quorvane {

namespace {

// The press that closes the popover and the click that the tray reports afterwards are one gesture.
constexpr Seconds dismissingClickDelay{0.3};

} // namespace

PopoverPresentation::PopoverPresentation(Dependencies dependencies, InterfaceCallbacks callbacks)
    : m_dependencies(dependencies),
      m_callbacks(std::move(callbacks)),
      m_anchor(dependencies.workspace) {
}

PopoverPresentation::~PopoverPresentation() = default;

void PopoverPresentation::setupPopover() {
    if (m_popover)
        return;
    using Background = StatusPopover::Background;
    const bool composited = m_dependencies.windowTraits.isComposited();
    m_view = m_callbacks.makeContentView().release();
    m_popover = std::make_unique<StatusPopover>(
        m_view, composited ? Background::Composited : Background::Plain);
    m_callbacks.attachMainMenu(*m_popover);
    QObject::connect(
        m_popover.get(), &StatusPopover::dismissed, m_popover.get(), [this] { noteDismissal(); });
    QObject::connect(
        m_popover.get(),
        &StatusPopover::painted,
        m_popover.get(),
        m_callbacks.onFirstPaint,
        static_cast<Qt::ConnectionType>(Qt::QueuedConnection | Qt::SingleShotConnection));
}

void PopoverPresentation::makeReady() {
    setupPopover();
    // Fonts, letters and symbols are kept once they have been painted.
    m_popover->grab();
}

void PopoverPresentation::show(InputDevice device) {
    // A compositing manager may have come or gone since it was made.
    const bool isComposited = m_dependencies.windowTraits.isComposited();
    if (m_popover && !m_popover->isVisible() && m_popover->isComposited() != isComposited)
        discard();
    setupPopover();
    if (!m_popover->isVisible())
        FocusRing::of(*m_popover)->setLastInput(device);
    if (m_dependencies.trayIcon.hasButton())
        m_popover->showAt(m_anchor.place(m_dependencies.trayIcon.frame()));
}

void PopoverPresentation::close() {
    if (m_popover)
        m_popover->close();
}

void PopoverPresentation::discard() {
    m_popover.reset();
}

void PopoverPresentation::refreshSoon() {
    if (m_view)
        m_view->refreshSoon();
}

bool PopoverPresentation::isShown() const {
    return m_popover && m_popover->isVisible();
}

bool PopoverPresentation::takeDismissingClick() {
    return std::exchange(m_dismissal, std::nullopt).has_value();
}

void PopoverPresentation::noteDismissal() {
    m_dismissal =
        m_dependencies.mainQueue.after(dismissingClickDelay, [this] { m_dismissal.reset(); });
}

} // namespace quorvane
