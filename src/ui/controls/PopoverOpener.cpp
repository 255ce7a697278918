// SPDX-License-Identifier: MIT
#include <controls/PopoverOpener.h>

#include <utility>

namespace quorvane {

PopoverOpener::PopoverOpener(
    PressableControl& anchor, PopoverEffects effects, MakeContent makeContent)
    : m_anchor(anchor),
      m_effects(std::move(effects)),
      m_makeContent(std::move(makeContent)) {
}

void PopoverOpener::open() {
    if (isOpen())
        return;
    m_popover = new AnchoredPopover(&m_anchor, m_makeContent(), m_effects);
    m_popover->setAccessibleName(m_name);
    m_popover->setLayoutDirection(m_anchor.layoutDirection());
    m_popover->setAlignment(m_alignment);
    connect(m_popover, &AnchoredPopover::closed, this, [this] {
        m_popover = nullptr;
        announceExpansion();
    });
    m_popover->open();
    announceExpansion();
}

void PopoverOpener::close() {
    if (isOpen())
        m_popover->close();
}

void PopoverOpener::toggle() {
    if (isOpen())
        close();
    else
        open();
}

void PopoverOpener::announceExpansion() {
    m_anchor.update();
    QAccessible::State changed;
    changed.expanded = true;
    QAccessibleStateChangeEvent event(&m_anchor, changed);
    QAccessible::updateAccessibility(&event);
}

} // namespace quorvane
