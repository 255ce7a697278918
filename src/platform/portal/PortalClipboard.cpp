// SPDX-License-Identifier: MIT
#include "PortalFile.h"
#include "PortalLog.h"
#include "PortalNames.h"
#include "PortalOffer.h"
#include "PortalReading.h"
#include "PortalSession.h"
#include "PortalSource.h"

#include <platform_portal/PortalClipboard.h>

#include <QDBusArgument>
#include <QDBusObjectPath>
#include <QPointer>

#include <unistd.h>
#include <utility>

namespace quorvane {

using namespace Qt::StringLiterals;

namespace {

const auto typesOption = u"mime_types"_s;

/// Portals need not tell what was copied before they began to share: it is asked for by the names
/// of what is copied most.
QStringList commonTypes() {
    return {
        u"text/plain;charset=utf-8"_s,
        u"UTF8_STRING"_s,
        u"text/plain"_s,
        u"text/html"_s,
        u"text/uri-list"_s,
        u"image/png"_s};
}

/// The interface says that it is a list of texts; some portals put that into a structure.
QStringList listed(const QVariant& types) {
    if (types.metaType() != QMetaType::fromType<QDBusArgument>())
        return types.toStringList();
    const auto argument = types.value<QDBusArgument>();
    QStringList list;
    if (argument.currentSignature() == "(as)"_L1) {
        argument.beginStructure();
        argument >> list;
        argument.endStructure();
    }
    return list;
}

QStringList bounded(const QStringList& types) {
    QStringList few;
    for (const auto& type : types) {
        if (few.size() < DataOffer::mostTypes && type.size() <= PortalClipboard::longestType)
            few.append(type);
    }
    return few;
}

} // namespace

PortalClipboard::PortalClipboard(std::shared_ptr<PortalDesktop> portal, MainQueue& queue)
    : m_portal(std::move(portal)),
      m_queue(queue) {
}

PortalClipboard::~PortalClipboard() = default;

void PortalClipboard::request(PortalSession& session, std::function<void()> done) {
    // It may tell what stands there before we know that it is shared.
    listen();
    m_path = session.path();
    m_early.reset();
    auto message = session.question(portalname::clipboard, u"RequestClipboard");
    message << QVariantMap();
    m_portal->ask(
        message,
        &session,
        [done = std::move(done)](const QDBusMessage& answer) {
            if (answer.type() == QDBusMessage::ErrorMessage)
                qCInfo(lcPortal, "no clipboard: %ls", qUtf16Printable(answer.errorMessage()));
            done();
        },
        patience);
}

void PortalClipboard::begin(const PortalSession& session) {
    m_session = &session;
    m_unconfirmed = 0;
    qCInfo(lcPortal, "the portal shares the clipboard");
    if (m_early)
        tell(offerOf(*m_early));
    else
        tell(std::make_shared<PortalOffer>(*this, commonTypes(), PortalOffer::Types::Guessed));
}

void PortalClipboard::end() {
    if (std::exchange(m_session, nullptr) == nullptr)
        return;
    m_source = nullptr;
    // A copy: the handler may follow anew.
    const auto deviceChanged = m_handlers.deviceChanged;
    deviceChanged();
}

DataDevice* PortalClipboard::device() {
    return m_session != nullptr ? this : nullptr;
}

/// What the portal has told comes before its answer.
std::shared_ptr<void> PortalClipboard::whenSettled(std::function<void()> done) {
    auto wanted = std::make_shared<QObject>();
    m_portal->ask(
        m_portal->question(u"org.freedesktop.DBus.Peer", u"Ping"),
        wanted.get(),
        [this, wanted = QPointer(wanted.get()), done = std::move(done)](const QDBusMessage&) {
            m_queue.async([wanted, done] {
                if (wanted)
                    done();
            });
        });
    return wanted;
}

std::unique_ptr<OfferReading>
PortalClipboard::read(const QString& type, qsizetype mostBytes, PipeReading::Callbacks callbacks) {
    if (m_session == nullptr)
        return nullptr;
    auto message = question(u"SelectionRead");
    message << type;
    return std::make_unique<PortalReading>(
        *m_portal, m_queue, message, mostBytes, std::move(callbacks));
}

void PortalClipboard::forget(const PortalSource* source) {
    if (m_source == source)
        m_source = nullptr;
}

std::unique_ptr<DataSource>
PortalClipboard::makeSource(const QStringList& types, DataSource::Handlers handlers) {
    return std::make_unique<PortalSource>(*this, types, std::move(handlers));
}

void PortalClipboard::select(ClipboardKind /*kind*/, const DataSource* source) {
    m_source = static_cast<const PortalSource*>(source);
    auto message = question(u"SetSelection");
    message << QVariantMap{{typesOption, m_source != nullptr ? m_source->types() : QStringList()}};
    ++m_unconfirmed;
    m_portal->ask(message, this, [this, session = m_session->path()](const QDBusMessage& answer) {
        if (m_session == nullptr || session != m_session->path())
            return;
        --m_unconfirmed;
        if (answer.type() == QDBusMessage::ReplyMessage)
            return;
        qCInfo(lcPortal, "the clipboard: %ls", qUtf16Printable(answer.errorMessage()));
        // A copy: it may destroy this.
        const auto refused = m_refused;
        refused();
    });
}

/// To the portal that was met, for sessions of any time.
void PortalClipboard::listen() {
    if (std::exchange(m_listenedOwner, m_portal->owner()) == m_portal->owner())
        return;
    m_portal->follow(
        portalname::clipboard, u"SelectionOwnerChanged"_s, this, SLOT(adoptOwner(QDBusMessage)));
    m_portal->follow(
        portalname::clipboard, u"SelectionTransfer"_s, this, SLOT(transfer(QDBusMessage)));
}

bool PortalClipboard::isOurs(const QDBusMessage& signal, QLatin1StringView signature) const {
    return signal.signature() == signature &&
           signal.arguments().at(0).value<QDBusObjectPath>().path() == m_path;
}

QDBusMessage PortalClipboard::question(QStringView method) const {
    return m_session->question(portalname::clipboard, method);
}

void PortalClipboard::adoptOwner(const QDBusMessage& signal) {
    if (!isOurs(signal, "oa{sv}"_L1))
        return;
    const auto options = qdbus_cast<QVariantMap>(signal.arguments().at(1));
    // What was told before the portal has taken ours is the past.
    if (options.value(u"session_is_owner"_s).toBool() || m_unconfirmed > 0)
        return;
    const auto types = bounded(listed(options.value(typesOption)));
    if (m_session == nullptr) {
        m_early = types;
        return;
    }
    if (const auto* source = std::exchange(m_source, nullptr)) {
        // A copy: it destroys the source.
        const auto cancelled = source->handlers().cancelled;
        cancelled();
    }
    tell(offerOf(types));
}

void PortalClipboard::tell(std::shared_ptr<DataOffer> offer) {
    // A copy: the handler may follow anew.
    const auto offered = m_handlers.offered;
    offered(ClipboardKind::General, std::move(offer));
}

std::shared_ptr<DataOffer> PortalClipboard::offerOf(const QStringList& types) {
    if (types.isEmpty())
        return nullptr;
    return std::make_shared<PortalOffer>(*this, types, PortalOffer::Types::Told);
}

void PortalClipboard::transfer(const QDBusMessage& signal) {
    if (m_session == nullptr || !isOurs(signal, "osu"_L1))
        return;
    const auto type = signal.arguments().at(1).toString();
    const auto serial = signal.arguments().at(2).toUInt();
    const bool isThere = m_source != nullptr && m_source->types().contains(type);
    if (!isThere || m_transfers >= PipeWriting::mostTransfers)
        return tellEnd(m_session->path(), serial, false);
    auto message = question(u"SelectionWrite");
    message << serial;
    ++m_transfers;
    m_portal->ask(message, this, [this, type, serial](const QDBusMessage& answer) {
        --m_transfers;
        give(type, serial, answer);
    });
}

void PortalClipboard::give(const QString& type, std::uint32_t serial, const QDBusMessage& answer) {
    const auto descriptor = portalfile::in(answer);
    if (!descriptor)
        return;
    if (m_session == nullptr || m_source == nullptr) {
        ::close(*descriptor);
        return;
    }
    m_source->handlers().send(
        type,
        *descriptor,
        [self = QPointer(this), session = m_session->path(), serial](bool isWhole) {
            if (self)
                self->tellEnd(session, serial, isWhole);
        });
}

void PortalClipboard::tellEnd(const QString& session, std::uint32_t serial, bool isWhole) {
    if (m_session == nullptr || m_session->path() != session)
        return;
    auto message = question(u"SelectionWriteDone");
    message << serial << isWhole;
    m_portal->bus().send(message);
}

} // namespace quorvane
