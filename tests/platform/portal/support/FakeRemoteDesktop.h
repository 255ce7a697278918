// SPDX-License-Identifier: MIT
#pragma once

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusVirtualObject>
#include <QList>
#include <QStringList>
#include <QVariantMap>

#include <optional>

namespace quorvane {

class FakeSharedClipboard;

/// The portal's side of org.freedesktop.portal.RemoteDesktop and of what belongs to it, with a user
/// who answers as a test says.
class FakeRemoteDesktop final : public QDBusVirtualObject {
public:
    enum class Answer { Yes, No, NotYet };

    /// One key that was moved.
    struct Key {
        int code = 0;
        uint state = 0;

        friend bool operator==(const Key&, const Key&) = default;
    };

    static constexpr auto service = "org.freedesktop.portal.Desktop";

    explicit FakeRemoteDesktop(QDBusConnection bus);
    ~FakeRemoteDesktop() override;

    FakeRemoteDesktop(const FakeRemoteDesktop&) = delete;
    FakeRemoteDesktop& operator=(const FakeRemoteDesktop&) = delete;

    /// Its own connection.
    [[nodiscard]] const QDBusConnection& bus() const { return m_bus; }

    /// Takes the portal's name.
    void appear();
    void vanish();

    /// Answers the question that waits.
    void answer(Answer given);

    /// The user takes the consent back.
    void closeSession();

    /// The methods that were called, in order, but for the keys.
    [[nodiscard]] const QStringList& calls() const { return m_calls; }

    [[nodiscard]] qsizetype callsOf(const QString& method) const { return m_calls.count(method); }

    /// The options of the last call of the method.
    [[nodiscard]] QVariantMap optionsOf(const QString& method) const { return m_options[method]; }

    [[nodiscard]] const QList<Key>& keys() const { return m_keys; }

    /// Where the last answer is awaited, by whom.
    [[nodiscard]] const QString& requestPath() const { return m_request; }

    [[nodiscard]] const QString& sessionPath() const { return m_session; }

    [[nodiscard]] const QString& client() const { return m_client; }

    [[nodiscard]] QString introspect(const QString& path) const override;
    bool handleMessage(const QDBusMessage& message, const QDBusConnection& connection) override;

    FakeSharedClipboard* clipboard = nullptr; ///< takes part in the session, where there is one
    bool hasRegistry = false;
    QVariantMap offer{
        {QStringLiteral("version"), 1U}, {QStringLiteral("AvailableDeviceTypes"), 7U}};
    Answer user = Answer::Yes;
    QVariantMap consent{{QStringLiteral("devices"), 1U}}; ///< what comes with a yes
    QStringList silentAbout;                              ///< methods that are never answered
    QStringList refuses;                                  ///< methods that give an error
    std::optional<QString> foreignRequest;                ///< handed out in place of the true one
    std::optional<QString> foreignSession;
    bool hasOddTypes = false; ///< answers are not of the documented types

private:
    bool handleRemoteDesktop(const QDBusMessage& message);
    void handOutRequest(const QDBusMessage& message, const QVariantMap& options);
    void respond(uint code, const QVariantMap& results);

    QDBusConnection m_bus;
    QStringList m_calls;
    QMap<QString, QVariantMap> m_options;
    QList<Key> m_keys;
    QString m_client;
    QString m_request;
    QString m_session;
};

} // namespace quorvane
