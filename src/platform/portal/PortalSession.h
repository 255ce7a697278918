// SPDX-License-Identifier: MIT
#pragma once

#include "PortalRequest.h"

#include <QObject>
#include <QString>

#include <functional>
#include <memory>

namespace quorvane {

/// A session at the portal (org.freedesktop.portal.Session). It ends with this object; or before,
/// when the user or the desktop ends it, or the portal goes. Questions within it are put one after
/// the other.
class PortalSession final : public QObject {
    Q_OBJECT

public:
    struct Callbacks {
        /// Whether there is a session now.
        std::function<void(bool)> onCreated;
        /// It is over. Runs in a later iteration of the event loop, and may destroy this.
        std::function<void()> onEnded;
    };

    /// How long the portal may take for what it asks nobody about.
    static constexpr Seconds patience{10};

    /// Makes one at the portal that was met. Portal and queue must outlive it.
    PortalSession(
        PortalDesktop& portal, MainQueue& queue, QStringView interface, Callbacks callbacks);
    ~PortalSession() override;

    PortalSession(const PortalSession&) = delete;
    PortalSession& operator=(const PortalSession&) = delete;

    /// As the portal's signals name it.
    [[nodiscard]] const QString& path() const { return m_path; }

    /// Puts the next question; `arguments` are those between the session and the options. See
    /// PortalRequest for `patience` and `done`.
    void
    put(QStringView method,
        const QVariantList& arguments,
        const QVariantMap& options,
        std::optional<Seconds> patience,
        PortalRequest::Done done);

    /// A method of the interface that is answered by its return, with the session as first
    /// argument.
    [[nodiscard]] QDBusMessage question(QStringView method) const;

    /// The same of another interface that takes part in the session.
    [[nodiscard]] QDBusMessage question(QStringView interface, QStringView method) const;

private Q_SLOTS:
    void end();

private:
    void create();
    void adopt(const PortalResponse& response);

    PortalDesktop& m_portal;
    MainQueue& m_queue;
    QStringView m_interface;
    Callbacks m_callbacks;
    QString m_owner; ///< of the portal that it is at
    QString m_path;
    std::unique_ptr<PortalRequest> m_request;
    bool m_isOpen = false;
};

} // namespace quorvane
