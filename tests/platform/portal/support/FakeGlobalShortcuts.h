// SPDX-License-Identifier: MIT
#pragma once

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusVirtualObject>
#include <QStringList>
#include <QVariantMap>

#include <optional>

namespace quorvane {

/// The portal's side of org.freedesktop.portal.GlobalShortcuts, with a user who agrees or not.
class FakeGlobalShortcuts final : public QDBusVirtualObject {
public:
    explicit FakeGlobalShortcuts(QDBusConnection bus);
    ~FakeGlobalShortcuts() override;

    FakeGlobalShortcuts(const FakeGlobalShortcuts&) = delete;
    FakeGlobalShortcuts& operator=(const FakeGlobalShortcuts&) = delete;

    void appear();
    void vanish();

    void press(const QString& session, const QVariantMap& options = {});
    void release(const QString& session);

    /// The user gives it other keys in the desktop's settings; none takes it away.
    void change(const std::optional<QString>& trigger);

    [[nodiscard]] const QStringList& calls() const { return m_calls; }

    [[nodiscard]] qsizetype callsOf(const QString& method) const { return m_calls.count(method); }

    /// What was wished for last; none where nothing was.
    [[nodiscard]] QString wish() const { return m_wish; }

    [[nodiscard]] const QString& sessionPath() const { return m_session; }

    [[nodiscard]] QString introspect(const QString& path) const override;
    bool handleMessage(const QDBusMessage& message, const QDBusConnection& connection) override;

    bool isOffered = true;
    bool userAgrees = true;
    uint agreement = 0;         ///< how it answers then: GNOME 48 says 2
    bool bindsNothing = false;  ///< answers with success and an empty list
    bool knowsShortcut = false; ///< bound in an earlier run
    QString trigger = QStringLiteral("Ctrl+Shift+Meta+D"); ///< what it tells of the keys

private:
    void handOutRequest(const QDBusMessage& message);
    void bind(const QDBusMessage& message);
    void respond(uint code, const QVariantMap& results);
    void signal(const QString& name, const QVariantList& arguments);
    [[nodiscard]] QVariant list(bool isBound) const;

    QDBusConnection m_bus;
    QStringList m_calls;
    QString m_client;
    QString m_request;
    QString m_session;
    QString m_wish;
};

} // namespace quorvane
