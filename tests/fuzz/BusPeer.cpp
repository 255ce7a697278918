// SPDX-License-Identifier: MIT
#include "BusPeer.h"

#include "FuzzInput.h"
#include "PortalShortcutEntry.h"

#include <support/WaitUntil.h>

#include <QDBusPendingCallWatcher>

namespace quorvane {

using namespace Qt::StringLiterals;

namespace {

const auto markInterface = u"org.quorvane.Mark"_s;
const auto anyInterface = u"org.quorvane.Anything"_s;
const auto objectPath = u"/org/quorvane/Quorvane"_s;

QDBusMessage messageOf(std::uint8_t kind) {
    const auto component = u"org.kde.kglobalaccel.Component"_s;
    const auto application = u"org.freedesktop.Application"_s;
    const auto call = [&](const QString& method) {
        return QDBusMessage::createMethodCall(QString(), objectPath, application, method);
    };
    switch (kind % 8) {
    case 0:
        return QDBusMessage::createSignal(
            PortalAppearance::objectPath.toString(),
            PortalAppearance::interfaceName.toString(),
            u"SettingChanged"_s);
    case 1:
        return QDBusMessage::createSignal(u"/a"_s, component, u"globalShortcutPressed"_s);
    case 2:
        return QDBusMessage::createSignal(u"/a"_s, component, u"globalShortcutReleased"_s);
    case 3:
        return QDBusMessage::createSignal(
            u"/kglobalaccel"_s, u"org.kde.KGlobalAccel"_s, u"yourShortcutsChanged"_s);
    case 4:
        return call(u"Activate"_s);
    case 5:
        return call(u"Open"_s);
    case 6:
        return call(u"ActivateAction"_s);
    default:
        return QDBusMessage::createSignal(u"/a"_s, anyInterface, u"Anything"_s);
    }
}

} // namespace

BusPeer::BusPeer()
    : m_server(u"unix:path="_s + m_folder.filePath(u"socket"_s)),
      m_ours([this] {
          connect(
              &m_server, &QDBusServer::newConnection, this, [this](const QDBusConnection& theirs) {
                  m_theirs = theirs;
              });
          return QDBusConnection::connectToPeer(m_server.address(), u"ours"_s);
      }()),
      m_appearance(m_ours),
      m_shortcuts(m_ours),
      m_application(FreedesktopApplication::Start::ByUser, &m_object) {
    demand(m_ours.isConnected(), "the peer takes connections");
    demand(waitUntil([this] { return m_theirs.has_value(); }), "the peer is connected");
    m_theirs->registerVirtualObject(u"/"_s, this, QDBusConnection::SubPath);
    m_ours.registerObject(objectPath, &m_object, QDBusConnection::ExportAdaptors);
    m_ours.connect(
        QString(), QString(), anyInterface, u"Anything"_s, this, SLOT(hearAnything(QDBusMessage)));
}

void BusPeer::provoke(int question) {
    if (question == 0)
        return m_appearance.read();
    if (question == 1)
        return m_shortcuts.askHolder(1, [](const QString&) {});
    m_shortcuts.claim(1, 2, KGlobalAccel::Claim::AsStored, [](const auto& keys) {
        demand(!keys || keys->size() <= 16, "no more keys than anybody has");
    });
}

void BusPeer::send(std::uint8_t kind, const QVariantList& arguments) {
    auto message = messageOf(kind);
    message.setArguments(arguments);
    m_theirs->send(message);
}

void BusPeer::settle() {
    // Answers lead to further questions, twice at most.
    for (int round = 0; round < 3; ++round)
        settleOnce();
    m_answers.clear();
}

void BusPeer::settleOnce() {
    QDBusPendingCallWatcher answer(m_ours.asyncCall(
        QDBusMessage::createMethodCall(QString(), u"/mark"_s, markInterface, u"Mark"_s)));
    demand(waitUntil([&] { return answer.isFinished(); }), "the peer answers");
}

QString BusPeer::introspect(const QString& /*path*/) const {
    return {};
}

bool BusPeer::handleMessage(const QDBusMessage& message, const QDBusConnection& bus) {
    auto answer = message.createReply();
    if (message.interface() != markInterface && !m_answers.empty()) {
        answer.setArguments(m_answers.front());
        m_answers.pop_front();
    }
    bus.send(answer);
    return true;
}

void BusPeer::hearAnything(const QDBusMessage& message) {
    for (const auto& argument : message.arguments())
        (void) portalshortcuts::traitsOf(u"toggle"_s, argument);
}

} // namespace quorvane
