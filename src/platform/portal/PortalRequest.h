// SPDX-License-Identifier: MIT
#pragma once

#include <loop/MainQueue.h>
#include <platform_portal/PortalDesktop.h>

#include <QObject>
#include <QString>
#include <QVariantList>
#include <QVariantMap>

#include <functional>
#include <optional>

namespace quorvane {

/// How a question to the portal ended.
struct PortalResponse {
    enum class Outcome {
        Success,
        Refused, ///< by the user, or by the desktop in the user's name
        Failed,  ///< it was never put: no portal, no answer, or one that cannot be trusted
    };

    Outcome outcome = Outcome::Failed;
    QVariantMap results; ///< of Refused as well, where the user has not cancelled
};

/// One question of the kind that the portal answers by a signal, at once or when the user has made
/// up their mind (org.freedesktop.portal.Request). Destroying it takes the question back.
class PortalRequest final : public QObject {
    Q_OBJECT

public:
    struct Question {
        QStringView interface;
        QStringView method;
        QVariantList arguments; ///< those before the options
        QVariantMap options;
    };

    using Done = std::function<void(const PortalResponse&)>;

    /// Without `patience` it waits for the user as long as it takes. `done` runs once, in a later
    /// iteration of the event loop, and may destroy the request. Portal and queue must outlive it.
    PortalRequest(
        PortalDesktop& portal,
        MainQueue& queue,
        Question question,
        std::optional<Seconds> patience,
        Done done);
    ~PortalRequest() override;

    PortalRequest(const PortalRequest&) = delete;
    PortalRequest& operator=(const PortalRequest&) = delete;

private Q_SLOTS:
    void respond(const QDBusMessage& signal);

private:
    void put(const Question& question, const QString& token);
    void checkHandle(const QDBusMessage& answer);
    void fail(const QString& reason);
    void finish(PortalResponse response);

    PortalDesktop& m_portal;
    MainQueue& m_queue;
    QString m_name; ///< for the log
    QString m_path;
    Done m_done;
    Deadline m_end;
    bool m_isFinished = false;
};

} // namespace quorvane
