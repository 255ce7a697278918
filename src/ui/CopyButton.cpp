// SPDX-License-Identifier: MIT
#include <ui/CopyButton.h>

namespace quorvane {

CopyButton::CopyButton(MainQueue& queue, QWidget* parent) : QPushButton(parent), m_queue(queue) {
    setCopyConfirmed(false);
}

void CopyButton::confirm() {
    setCopyConfirmed(true);
    m_resets.run(m_queue, confirmation, [this] { setCopyConfirmed(false); });
}

void CopyButton::setCopyConfirmed(bool confirmed) {
    m_copyConfirmed = confirmed;
    setText(confirmed ? tr("Copied") : tr("Copy"));
}

} // namespace quorvane
