// SPDX-License-Identifier: MIT
#include <platform_dbus/PortalAppearance.h>

#include <QDBusArgument>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusServiceWatcher>
#include <QDBusVariant>
#include <QLoggingCategory>
#include <QMap>

#include <utility>

namespace quorvane {

using namespace Qt::StringLiterals;

namespace {

Q_LOGGING_CATEGORY(lcAppearance, "quorvane.appearance", QtFatalMsg)

using Reading = QMap<QString, QVariantMap>;
constexpr auto readingSignature = "a{sa{sv}}"_L1;

} // namespace

PortalAppearance::PortalAppearance(QDBusConnection bus, std::chrono::milliseconds patience)
    : m_bus(std::move(bus)),
      m_patience(patience) {
}

PortalAppearance::~PortalAppearance() = default;

void PortalAppearance::read() {
    if (!m_bus.isConnected()) {
        qCInfo(lcAppearance, "no session bus");
        return;
    }
    if (!m_arrivals)
        follow();
    ask();
}

void PortalAppearance::follow() {
    // From any sender: to match one by its name, Qt would wait for the bus to tell its owner. Where
    // no signature is asked for, Qt ends the process when somebody sends a structure instead.
    m_bus.connect(
        QString(),
        objectPath.toString(),
        interfaceName.toString(),
        u"SettingChanged"_s,
        u"ssv"_s,
        this,
        SLOT(settingChanged(QString, QString, QDBusVariant)));
    m_arrivals = std::make_unique<QDBusServiceWatcher>(
        serviceName.toString(), m_bus, QDBusServiceWatcher::WatchForRegistration);
    connect(
        m_arrivals.get(), &QDBusServiceWatcher::serviceRegistered, this, &PortalAppearance::ask);
}

void PortalAppearance::ask() {
    auto question = QDBusMessage::createMethodCall(
        serviceName.toString(), objectPath.toString(), interfaceName.toString(), u"ReadAll"_s);
    question << QStringList{
        PortalSettings::appearanceNamespace.toString(),
        PortalSettings::interfaceNamespace.toString()};
    auto* answer = new QDBusPendingCallWatcher(
        m_bus.asyncCall(question, static_cast<int>(m_patience.count())), this);
    connect(answer, &QDBusPendingCallWatcher::finished, this, [this, answer] {
        adoptReading(answer->reply());
        answer->deleteLater();
    });
}

void PortalAppearance::adoptReading(const QDBusMessage& reply) {
    if (reply.type() == QDBusMessage::ErrorMessage) {
        qCInfo(lcAppearance, "the portal: %ls", qUtf16Printable(reply.errorMessage()));
        return;
    }
    if (reply.signature() != readingSignature) {
        qCInfo(lcAppearance, "the portal answers with \"%ls\"", qUtf16Printable(reply.signature()));
        return;
    }
    const auto before = current();
    const auto reading = qdbus_cast<Reading>(reply.arguments().constFirst());
    for (auto [nameSpace, values] : reading.asKeyValueRange()) {
        for (auto [key, value] : values.asKeyValueRange())
            note(nameSpace, key, value);
    }
    tellSince(before);
}

void PortalAppearance::settingChanged(
    const QString& nameSpace, const QString& key, const QDBusVariant& value) {
    const auto before = current();
    note(nameSpace, key, value.variant());
    tellSince(before);
}

void PortalAppearance::note(const QString& nameSpace, const QString& key, const QVariant& value) {
    if (m_settings.note(nameSpace, key, value) == PortalSettings::Outcome::WrongType)
        qCInfo(
            lcAppearance,
            "%ls %ls is a %s",
            qUtf16Printable(nameSpace),
            qUtf16Printable(key),
            value.typeName());
}

void PortalAppearance::tellSince(const DesktopAppearance& before) const {
    if (m_changed && current() != before)
        m_changed();
}

} // namespace quorvane
