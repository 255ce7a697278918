// SPDX-License-Identifier: MIT
#pragma once

#include "CopyReason.h"

#include <platform/AccessibilityRight.h>
#include <platform/Notifications.h>

#include <QObject>
#include <QString>

#include <functional>

namespace quorvane {

/// Tells the user that a text was copied instead of inserted: by a notification of the desktop, or
/// where nobody shows notifications by a text for our own windows and the icon.
class DeliveryNotice final : public QObject {
    Q_OBJECT

public:
    /// Both must outlive the notice.
    struct Dependencies {
        Notifications& notifications;
        const AccessibilityRight& accessibilityRight;
    };

    struct Callbacks {
        /// text() has changed.
        std::function<void()> onTextChanged;
        /// The user wants to give the right to type.
        std::function<void()> onAllow;
    };

    DeliveryNotice(Dependencies dependencies, Callbacks callbacks);

    void tellCopied(CopyReason reason);

    /// It is no longer true, or no longer of interest.
    void clear();

    /// What no notification could say; empty for nothing.
    [[nodiscard]] const QString& text() const { return m_text; }

private:
    [[nodiscard]] Notification notificationOf(CopyReason reason) const;
    void setText(const QString& text);

    Dependencies m_dependencies;
    Callbacks m_callbacks;
    QString m_text;
    int m_notices = 0; ///< those begun and those cleared: an outcome that comes after is ignored
};

} // namespace quorvane
