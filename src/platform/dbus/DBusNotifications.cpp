// SPDX-License-Identifier: MIT
#include <platform_dbus/DBusNotifications.h>

#include <QDBusPendingCallWatcher>
#include <QLoggingCategory>
#include <QVariantMap>

#include <utility>

namespace quorvane {

using namespace Qt::StringLiterals;

namespace {

Q_LOGGING_CATEGORY(lcNotifications, "quorvane.notifications", QtFatalMsg)

constexpr auto applicationName = "Quorvane"_L1;
constexpr auto applicationId = "org.quorvane.Quorvane"_L1; ///< of the icon and the desktop entry
constexpr auto actionKey = "act"_L1;
constexpr uchar normalUrgency = 1;
constexpr int serversOwnTime = -1; ///< how long it stays on the screen

QDBusMessage question(const QString& server, const QString& method) {
    return QDBusMessage::createMethodCall(
        server,
        DBusNotifications::objectPath.toString(),
        DBusNotifications::serviceName.toString(),
        method);
}

/// Asks the bus which process shows notifications. Answers do not say who sent them: Qt 6.8 keeps
/// that for signals and calls.
QDBusMessage serverQuestion() {
    const auto bus = u"org.freedesktop.DBus"_s;
    auto question =
        QDBusMessage::createMethodCall(bus, u"/org/freedesktop/DBus"_s, bus, u"GetNameOwner"_s);
    return question << DBusNotifications::serviceName.toString();
}

bool isError(const QDBusMessage& answer) {
    if (answer.type() != QDBusMessage::ErrorMessage)
        return false;
    qCInfo(lcNotifications, "not shown: %ls", qUtf16Printable(answer.errorMessage()));
    return true;
}

} // namespace

/// A notification on its way. Its outcome is told once: by the server's answer, or by the end of
/// the patience.
struct DBusNotifications::Request {
    void tell(NotificationOutcome outcome) {
        if (const auto tellOnce = std::exchange(done, {}))
            tellOnce(outcome);
    }

    [[nodiscard]] bool isTold() const { return !done; }

    Notification notification;
    Done done;
    Deadline limit = {};
    QStringList capabilities = {}; ///< of the server
};

DBusNotifications::DBusNotifications(QDBusConnection bus, MainQueue& mainQueue)
    : m_bus(std::move(bus)),
      m_mainQueue(mainQueue) {
}

DBusNotifications::~DBusNotifications() = default;

void DBusNotifications::show(Notification notification, Done done) {
    const bool hasBus = m_bus.isConnected();
    auto request = std::make_shared<Request>(Request{std::move(notification), std::move(done)});
    request->limit =
        m_mainQueue.after(hasBus ? patience : Seconds(0), [weak = std::weak_ptr(request)] {
            if (const auto late = weak.lock())
                late->tell(NotificationOutcome::NoServer);
        });
    // What the server shows, and has to replace, is known only once it has answered.
    if (m_sent || !hasBus)
        m_next = std::move(request);
    else
        send(std::move(request));
}

void DBusNotifications::send(std::shared_ptr<Request> request) {
    m_sent = std::move(request);
    follow();
    call(
        question(serviceName.toString(), u"GetCapabilities"_s),
        [this, request = m_sent](const QDBusMessage& answer) {
            request->capabilities = answer.arguments().value(0).toStringList();
            if (continues(request, answer))
                findServer(request);
        });
}

/// Unless there is no server, or the user has been told in another way meanwhile.
bool DBusNotifications::continues(
    const std::shared_ptr<Request>& request, const QDBusMessage& answer) {
    if (isError(answer))
        request->tell(NotificationOutcome::NoServer);
    if (request->isTold())
        sendNext();
    return !request->isTold();
}

void DBusNotifications::findServer(const std::shared_ptr<Request>& request) {
    call(serverQuestion(), [this, request](const QDBusMessage& answer) {
        if (continues(request, answer))
            notify(request, answer.arguments().value(0).toString());
    });
}

void DBusNotifications::notify(const std::shared_ptr<Request>& request, const QString& server) {
    const auto& known = request->capabilities;
    const auto& [title, body, action] = request->notification;
    const bool replaces = m_shown && m_shown->server == server;
    QStringList actions;
    if (action && known.contains("actions"_L1))
        actions = {actionKey, action->label};
    auto message = question(server, u"Notify"_s);
    message
        << QString(applicationName) << (replaces ? m_shown->id : 0U) << QString(applicationId)
        << title << (known.contains("body-markup"_L1) ? body.toHtmlEscaped() : body) << actions
        << QVariantMap{{u"desktop-entry"_s, QString(applicationId)}, {u"urgency"_s, QVariant::fromValue(normalUrgency)}}
        << serversOwnTime;
    call(message, [this, request, server](const QDBusMessage& answer) {
        adopt(request, server, answer);
    });
}

void DBusNotifications::adopt(
    const std::shared_ptr<Request>& request, const QString& server, const QDBusMessage& answer) {
    if (isError(answer)) {
        request->tell(NotificationOutcome::NoServer);
    } else {
        const auto& action = request->notification.action;
        m_shown = {
            server,
            answer.arguments().value(0).toUInt(),
            action ? action->perform : std::function<void()>()};
        request->tell(NotificationOutcome::Shown);
    }
    sendNext();
}

void DBusNotifications::sendNext() {
    m_sent.reset();
    const auto next = std::exchange(m_next, nullptr);
    if (next && !next->isTold())
        send(next);
}

void DBusNotifications::call(
    const QDBusMessage& question, std::function<void(const QDBusMessage&)> answered) {
    auto* answer = new QDBusPendingCallWatcher(m_bus.asyncCall(question), this);
    connect(
        answer, &QDBusPendingCallWatcher::finished, this, [answer, answered = std::move(answered)] {
            answer->deleteLater();
            answered(answer->reply());
        });
}

void DBusNotifications::follow() {
    if (std::exchange(m_isFollowed, true))
        return;
    // From any sender: to match one by its name, Qt would wait for the bus to tell its owner.
    const auto service = serviceName.toString();
    const auto path = objectPath.toString();
    // Where no signature is asked for, Qt ends the process when somebody sends a structure instead.
    m_bus.connect(
        QString(),
        path,
        service,
        u"ActionInvoked"_s,
        u"us"_s,
        this,
        SLOT(actionInvoked(uint, QString, QDBusMessage)));
    m_bus.connect(
        QString(),
        path,
        service,
        u"NotificationClosed"_s,
        u"uu"_s,
        this,
        SLOT(closed(uint, uint, QDBusMessage)));
}

bool DBusNotifications::isShown(uint id, const QDBusMessage& signal) const {
    return m_shown && m_shown->id == id && m_shown->server == signal.service();
}

void DBusNotifications::actionInvoked(uint id, const QString& key, const QDBusMessage& signal) {
    if (!isShown(id, signal) || key != actionKey)
        return;
    const auto perform = m_shown->perform;
    if (perform)
        perform();
}

void DBusNotifications::closed(uint id, uint /*reason*/, const QDBusMessage& signal) {
    if (isShown(id, signal))
        m_shown.reset();
}

} // namespace quorvane
