// SPDX-License-Identifier: MIT
#include "AppDelegate.h"
#include "MainMenu.h"
#include "StatusPopover.h"

namespace quorvane {

namespace {

// The press that closes the popover and the click that the bar reports afterwards are one gesture.
constexpr Seconds reopeningHoldOff{0.3};

} // namespace

bool AppDelegate::isPopoverShown() const {
    return m_popover && m_popover->isVisible();
}

void AppDelegate::setupPopover() {
    if (m_popover)
        return;
    using Background = StatusPopover::Background;
    const bool composited = m_environment.platform.windowTraits->isComposited();
    m_popover = std::make_unique<StatusPopover>(
        makeContentView().release(), composited ? Background::Composited : Background::Plain);
    m_mainMenu->attachTo(*m_popover);
    connect(m_popover.get(), &StatusPopover::dismissed, this, &AppDelegate::holdOffReopening);
    connect(
        m_popover.get(),
        &StatusPopover::painted,
        this,
        &AppDelegate::prepareAfterFirstPaint,
        static_cast<Qt::ConnectionType>(Qt::QueuedConnection | Qt::SingleShotConnection));
}

void AppDelegate::showPopover() {
    if (m_popover && m_statusItem && m_statusItem->hasButton())
        m_popover->showAt(m_popoverAnchor.place(m_statusItem->frame()));
}

void AppDelegate::closePopover() {
    if (m_popover)
        m_popover->close();
}

void AppDelegate::holdOffReopening() {
    m_reopeningHeldOff =
        m_environment.mainQueue.after(reopeningHoldOff, [this] { m_reopeningHeldOff.reset(); });
}

} // namespace quorvane
