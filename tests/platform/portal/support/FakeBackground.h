// SPDX-License-Identifier: MIT
#pragma once

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusVirtualObject>
#include <QVariantMap>

#include <optional>

namespace quorvane {

/// The portal's side of org.freedesktop.portal.Background. Its user answers when the test says so.
class FakeBackground final : public QDBusVirtualObject {
public:
    explicit FakeBackground(QDBusConnection bus);
    ~FakeBackground() override;

    FakeBackground(const FakeBackground&) = delete;
    FakeBackground& operator=(const FakeBackground&) = delete;

    void appear();
    void vanish();

    /// What the last question was about; none where nothing is asked.
    [[nodiscard]] const std::optional<QVariantMap>& question() const { return m_question; }

    /// Whether the program has taken a question back.
    [[nodiscard]] bool isTakenBack() const { return m_isTakenBack; }

    void answer(uint code, const QVariantMap& results = {});

    [[nodiscard]] QString introspect(const QString& path) const override;
    bool handleMessage(const QDBusMessage& message, const QDBusConnection& connection) override;

    bool isOffered = true;

private:
    QDBusConnection m_bus;
    QString m_client;
    QString m_request;
    std::optional<QVariantMap> m_question;
    bool m_isTakenBack = false;
};

} // namespace quorvane
