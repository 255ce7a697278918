// SPDX-License-Identifier: MIT
#pragma once

#include <platform_dbus/PortalAppearance.h>

#include <QDBusArgument>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusVirtualObject>
#include <QList>
#include <QMap>
#include <QVariantMap>

#include <functional>

namespace quorvane {

/// A triple of doubles on the bus, the type of an accent.
struct Triple {
    double first = 0;
    double second = 0;
    double third = 0;
};

QDBusArgument& operator<<(QDBusArgument& argument, const Triple& triple);
const QDBusArgument& operator>>(const QDBusArgument& argument, Triple& triple);

/// The portal's side of a bus; says what a test lets it say.
class FakePortal final : public QDBusVirtualObject {
public:
    using Settings = QMap<QString, QVariantMap>;

    explicit FakePortal(QDBusConnection bus);
    ~FakePortal() override;

    /// Takes the portal's name; questions come from then on.
    void appear();
    void vanish();

    /// What the questions so far, and later ones, are answered with.
    void answer(const QVariant& reply);

    void answer(const Settings& settings) { answer(QVariant::fromValue(settings)); }

    void answerWithError();

    void announce(const QString& nameSpace, const QString& key, const QVariant& value);

    /// The signal of a change, with whatever arguments.
    void announceAnything(const QVariantList& arguments);

    [[nodiscard]] const QList<QDBusMessage>& questions() const { return m_questions; }

    [[nodiscard]] QString introspect(const QString& path) const override;
    bool handleMessage(const QDBusMessage& message, const QDBusConnection& connection) override;

private:
    void answerPending();

    QDBusConnection m_bus;
    QList<QDBusMessage> m_questions;
    QList<QDBusMessage> m_pending;
    std::function<QDBusMessage(const QDBusMessage& question)> m_answer;
};

} // namespace quorvane

Q_DECLARE_METATYPE(quorvane::Triple)
