// SPDX-License-Identifier: MIT
#include "KGlobalAccel.h"

#include "KdeSequence.h"

#include <QCoreApplication>
#include <QDBusArgument>
#include <QDBusObjectPath>
#include <QDBusPendingCallWatcher>
#include <QLoggingCategory>

#include <utility>

namespace quorvane {

using namespace Qt::StringLiterals;

namespace {

Q_LOGGING_CATEGORY(lcTap, "quorvane.tap", QtFatalMsg)

const auto path = u"/kglobalaccel"_s;
const auto interface = u"org.kde.KGlobalAccel"_s;
const auto componentInterface = u"org.kde.kglobalaccel.Component"_s;
const auto component = u"org.quorvane.Quorvane"_s;
const auto action = u"toggle"_s;

constexpr int patience = 3000;          // milliseconds
constexpr qsizetype mostSequences = 16; // System Settings has two
constexpr auto sequencesSignature = "a(ai)"_L1;

// The daemon's flags for keys that are set.
constexpr uint setPresent = 2;
constexpr uint notAsStored = 4;
constexpr uint isUsual = 8;

/// How the action is known to the daemon, and to people.
QStringList actionId() {
    return {
        component,
        action,
        u"Quorvane"_s,
        QCoreApplication::translate("KGlobalAccel", "Show or Hide")};
}

QVariant sequencesOf(int key) {
    return QVariant::fromValue(QList<KdeSequence>{kdeSequenceOf(key)});
}

std::optional<QList<int>> keysOf(const QVariant& value) {
    if (value.metaType() != QMetaType::fromType<QDBusArgument>())
        return std::nullopt;
    const auto argument = qvariant_cast<QDBusArgument>(value);
    if (argument.currentSignature() != sequencesSignature)
        return std::nullopt;
    QList<int> keys;
    argument.beginArray();
    while (!argument.atEnd() && keys.size() < mostSequences) {
        KdeSequence sequence;
        argument >> sequence;
        keys.append(keyOf(sequence));
    }
    argument.endArray();
    return keys;
}

QDBusMessage question(const QString& method) {
    auto message = QDBusMessage::createMethodCall(
        KGlobalAccel::serviceName.toString(), path, interface, method);
    // A daemon that is started for this call would see no keys: the compositor is the one that
    // does.
    message.setAutoStartService(false);
    return message;
}

QDBusMessage settingOf(int key, uint flags) {
    auto message = question(u"setShortcutKeys"_s);
    message << actionId() << sequencesOf(key) << flags;
    return message;
}

bool isError(const QDBusMessage& answer) {
    if (answer.type() == QDBusMessage::ReplyMessage)
        return false;
    qCInfo(lcTap, "no answer from the daemon: %ls", qUtf16Printable(answer.errorMessage()));
    return true;
}

} // namespace

KGlobalAccel::KGlobalAccel(QDBusConnection bus)
    : m_bus(std::move(bus)),
      m_owner(serviceName.toString(), m_bus, QDBusServiceWatcher::WatchForOwnerChange) {
    registerKdeSequence();
    connect(&m_owner, &QDBusServiceWatcher::serviceOwnerChanged, this, &KGlobalAccel::changeOwner);
    follow(componentInterface, u"globalShortcutPressed"_s, SLOT(hearPressed(QDBusMessage)));
    follow(componentInterface, u"globalShortcutReleased"_s, SLOT(hearReleased(QDBusMessage)));
    follow(interface, u"yourShortcutsChanged"_s, SLOT(hearKeys(QDBusMessage)));
}

void KGlobalAccel::claim(int key, std::optional<int> usual, Claim claim, KeysHandler answered) {
    auto registration = question(u"doRegister"_s);
    registration << actionId();
    m_bus.send(registration);
    if (usual)
        m_bus.send(settingOf(*usual, isUsual));
    const auto setting =
        settingOf(key, claim == Claim::AsAsked ? setPresent | notAsStored : setPresent);
    call(setting, [answered = std::move(answered)](const QDBusMessage& answer) {
        answered(isError(answer) ? std::nullopt : keysOf(answer.arguments().value(0)));
    });
    if (!std::exchange(m_knowsComponent, true))
        askComponent();
}

void KGlobalAccel::askHolder(int key, NameHandler answered) {
    auto message = question(u"actionList"_s);
    message << QVariant::fromValue(kdeSequenceOf(key));
    call(message, [answered = std::move(answered)](const QDBusMessage& answer) {
        // Component and action, then what people call them.
        const auto id = answer.arguments().value(0).toStringList();
        const bool isAnothers = !isError(answer) && id.size() > 2 && id[0] != component;
        answered(isAnothers ? (id[2].isEmpty() ? id[0] : id[2]) : QString());
    });
}

void KGlobalAccel::release() {
    m_isKeyDown = false;
    auto message = question(u"setInactive"_s);
    message << actionId();
    m_bus.send(message);
}

void KGlobalAccel::forget() {
    auto message = question(u"unregister"_s);
    message << component << action;
    m_bus.send(message);
}

/// Older daemons tell no releases; that they do stands in the component's description.
void KGlobalAccel::askComponent() {
    auto message = question(u"getComponent"_s);
    message << component;
    call(message, [this](const QDBusMessage& answer) {
        const auto object = qvariant_cast<QDBusObjectPath>(answer.arguments().value(0)).path();
        if (isError(answer) || object.isEmpty())
            return;
        auto introspection = QDBusMessage::createMethodCall(
            serviceName.toString(),
            object,
            u"org.freedesktop.DBus.Introspectable"_s,
            u"Introspect"_s);
        introspection.setAutoStartService(false);
        call(introspection, [this](const QDBusMessage& description) {
            m_tellsRelease =
                description.arguments().value(0).toString().contains("globalShortcutReleased"_L1);
        });
    });
}

void KGlobalAccel::hearPressed(const QDBusMessage& message) {
    if (!isOurs(message))
        return;
    m_isKeyDown = true;
    Q_EMIT pressed();
}

void KGlobalAccel::hearReleased(const QDBusMessage& message) {
    if (!isOurs(message))
        return;
    m_isKeyDown = false;
    Q_EMIT released();
}

void KGlobalAccel::hearKeys(const QDBusMessage& message) {
    const auto id = message.arguments().value(0).toStringList();
    const auto keys = keysOf(message.arguments().value(1));
    if (keys && id.value(0) == component && id.value(1) == action)
        Q_EMIT keysChanged(*keys);
}

void KGlobalAccel::changeOwner(
    const QString& /*service*/, const QString& /*before*/, const QString& now) {
    m_knowsComponent = false;
    m_isKeyDown = false;
    if (now.isEmpty())
        Q_EMIT vanished();
    else
        Q_EMIT appeared();
}

void KGlobalAccel::follow(const QString& ofInterface, const QString& signal, const char* slot) {
    // From any sender: to match one by its name, Qt would wait for the bus to tell its owner.
    m_bus.connect(QString(), QString(), ofInterface, signal, this, slot);
}

void KGlobalAccel::call(const QDBusMessage& message, Answered answered) {
    auto* answer = new QDBusPendingCallWatcher(m_bus.asyncCall(message, patience), this);
    connect(
        answer, &QDBusPendingCallWatcher::finished, this, [answer, answered = std::move(answered)] {
            answer->deleteLater();
            answered(answer->reply());
        });
}

bool KGlobalAccel::isOurs(const QDBusMessage& message) const {
    const auto& arguments = message.arguments();
    return arguments.value(0) == component && arguments.value(1) == action;
}

} // namespace quorvane
