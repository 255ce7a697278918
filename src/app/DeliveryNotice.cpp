// SPDX-License-Identifier: MIT
#include "DeliveryNotice.h"

#include <QPointer>

#include <utility>

namespace quorvane {

DeliveryNotice::DeliveryNotice(Dependencies dependencies, Callbacks callbacks)
    : m_dependencies(dependencies),
      m_callbacks(std::move(callbacks)) {
}

void DeliveryNotice::tellCopied(CopyReason reason) {
    clear();
    const auto notification = notificationOf(reason);
    const auto text = tr("%1. %2").arg(notification.title, notification.body);
    m_dependencies.notifications.show(
        notification,
        [self = QPointer(this), text, number = m_notices](NotificationOutcome outcome) {
            if (self && self->m_notices == number && outcome == NotificationOutcome::NoServer)
                self->setText(text);
        });
}

void DeliveryNotice::clear() {
    ++m_notices;
    if (!m_text.isEmpty())
        setText({});
}

Notification DeliveryNotice::notificationOf(CopyReason reason) const {
    const auto title = tr("Copied instead");
    if (reason == CopyReason::NoWindow)
        return {title, tr("There was no window to type into. Paste with your usual keys."), {}};
    Notification notification{
        title, tr("This desktop does not let Quorvane type. Paste with your usual keys."), {}};
    if (m_dependencies.accessibilityRight.canPrompt())
        notification.action = {tr("Allow typing…"), m_callbacks.onAllow};
    return notification;
}

void DeliveryNotice::setText(const QString& text) {
    m_text = text;
    m_callbacks.onTextChanged();
}

} // namespace quorvane
