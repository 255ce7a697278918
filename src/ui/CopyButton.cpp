// SPDX-License-Identifier: MIT
#include <controls/Theme.h>
#include <ui/CopyButton.h>

namespace quorvane {

CopyButton::CopyButton(MainQueue& queue, QWidget* parent)
    : ActionButton(Prominence::Bordered, Symbol::DocOnDoc, tr("Copy"), parent),
      m_queue(queue) {
}

void CopyButton::confirm() {
    setCopyConfirmed(true);
    m_resets.run(m_queue, confirmation, [this] { setCopyConfirmed(false); });
}

std::optional<QColor> CopyButton::tint(const Theme& theme) const {
    return m_copyConfirmed ? std::optional(theme.green) : std::nullopt;
}

void CopyButton::setCopyConfirmed(bool confirmed) {
    m_copyConfirmed = confirmed;
    setFace(
        confirmed ? Symbol::Checkmark : Symbol::DocOnDoc, confirmed ? tr("Copied") : tr("Copy"));
}

} // namespace quorvane
