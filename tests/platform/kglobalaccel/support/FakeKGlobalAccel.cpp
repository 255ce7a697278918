// SPDX-License-Identifier: MIT
#include "FakeKGlobalAccel.h"

#include <QDBusObjectPath>
#include <gtest/gtest.h>

#include <KGlobalAccel.h>
#include <KdeSequence.h>
#include <utility>

namespace quorvane {

using namespace Qt::StringLiterals;

namespace {

const auto service = KGlobalAccel::serviceName.toString();
const auto ourComponent = u"org.quorvane.Quorvane"_s;
const auto componentPath = u"/component/org_quorvane_Quorvane"_s;
const auto componentInterface = u"org.kde.kglobalaccel.Component"_s;

constexpr uint setPresent = 2;
constexpr uint notAsStored = 4;
constexpr uint isUsual = 8;

QList<KdeSequence> sequencesOf(const QList<int>& keys) {
    QList<KdeSequence> sequences;
    for (const auto key : keys)
        sequences.append(kdeSequenceOf(key));
    return sequences;
}

} // namespace

FakeKGlobalAccel::FakeKGlobalAccel(QDBusConnection bus) : m_bus(std::move(bus)) {
    registerKdeSequence();
    EXPECT_TRUE(m_bus.registerVirtualObject(u"/"_s, this, QDBusConnection::SubPath));
}

FakeKGlobalAccel::~FakeKGlobalAccel() {
    vanish();
    m_bus.unregisterObject(u"/"_s);
}

void FakeKGlobalAccel::appear() {
    EXPECT_TRUE(m_bus.registerService(service));
}

void FakeKGlobalAccel::vanish() {
    m_bus.unregisterService(service);
}

const FakeKGlobalAccel::Action* FakeKGlobalAccel::ours() const {
    const auto found = m_actions.constFind(ourComponent);
    return found == m_actions.constEnd() ? nullptr : &*found;
}

void FakeKGlobalAccel::change(const QList<int>& keys) {
    m_actions[ourComponent].keys = keys;
    auto signal = QDBusMessage::createSignal(
        u"/kglobalaccel"_s, u"org.kde.KGlobalAccel"_s, u"yourShortcutsChanged"_s);
    signal << m_actions[ourComponent].id << QVariant::fromValue(sequencesOf(keys));
    m_bus.send(signal);
}

void FakeKGlobalAccel::giveTo(const QString& program, int key) {
    m_actions[program] = {{program, u"action"_s, program, u"Something"_s}, {key}, {}, false, true};
}

void FakeKGlobalAccel::takeFrom(const QString& program) {
    m_actions.remove(program);
}

QString FakeKGlobalAccel::introspect(const QString& path) const {
    if (path != componentPath)
        return {};
    return tellsRelease
               ? u"<interface name=\"%1\"><signal name=\"globalShortcutPressed\"/>"
                 "<signal name=\"globalShortcutReleased\"/></interface>"_s.arg(componentInterface)
               : u"<interface name=\"%1\"/>"_s.arg(componentInterface);
}

bool FakeKGlobalAccel::handleMessage(
    const QDBusMessage& message, const QDBusConnection& /*connection*/) {
    if (message.interface() != u"org.kde.KGlobalAccel"_s)
        return false;
    message.setDelayedReply(true);
    if (m_hangs)
        return true;
    const auto answer = answerTo(message);
    m_bus.send(message.createReply(m_isNonsense ? QVariantList{u"nonsense"_s} : answer));
    return true;
}

QVariantList FakeKGlobalAccel::answerTo(const QDBusMessage& call) {
    const auto id = call.arguments().value(0).toStringList();
    const auto method = call.member();
    if (method == "doRegister"_L1) {
        m_actions[id.value(0)].id = id;
        return {};
    }
    if (method == "setShortcutKeys"_L1)
        return setKeys(call);
    if (method == "setInactive"_L1) {
        m_actions[id.value(0)].isPresent = false;
        return {};
    }
    if (method == "unregister"_L1) {
        m_actions.remove(call.arguments().value(0).toString());
        return {true};
    }
    if (method == "actionList"_L1) {
        const auto* holder = holderOf(keyOf(qdbus_cast<KdeSequence>(call.arguments().value(0))));
        return {holder != nullptr ? holder->id : QStringList()};
    }
    EXPECT_EQ(method, u"getComponent"_s);
    return {QVariant::fromValue(QDBusObjectPath(componentPath))};
}

QVariantList FakeKGlobalAccel::setKeys(const QDBusMessage& call) {
    const auto id = call.arguments().value(0).toStringList();
    const auto key = keyOf(qdbus_cast<QList<KdeSequence>>(call.arguments().value(1)).value(0));
    const auto flags = call.arguments().value(2).toUInt();
    auto& action = m_actions[id.value(0)];
    if ((flags & isUsual) != 0) {
        action.usualKeys = {key};
        return {QVariant::fromValue(sequencesOf({key}))};
    }
    if ((flags & notAsStored) != 0 || action.isFresh) {
        const auto* holder = holderOf(key);
        action.keys = {holder == nullptr || holder == &action ? key : 0};
        action.isFresh = false;
    }
    action.isPresent = action.isPresent || (flags & setPresent) != 0;
    return {QVariant::fromValue(sequencesOf(action.keys))};
}

const FakeKGlobalAccel::Action* FakeKGlobalAccel::holderOf(int key) const {
    for (const auto& action : m_actions) {
        if (action.keys.contains(key))
            return &action;
    }
    return nullptr;
}

void FakeKGlobalAccel::tell(QStringView signal, int key) {
    const auto* holder = holderOf(key);
    if (holder == nullptr || !holder->isPresent)
        return;
    auto message = QDBusMessage::createSignal(componentPath, componentInterface, signal.toString());
    message << holder->id[0] << holder->id[1] << qlonglong{0};
    m_bus.send(message);
}

} // namespace quorvane
