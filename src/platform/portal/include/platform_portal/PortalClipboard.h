// SPDX-License-Identifier: MIT
#pragma once

#include <loop/MainQueue.h>
#include <platform_offers/DataExchange.h>
#include <platform_portal/PortalDesktop.h>

#include <QDBusMessage>
#include <QObject>
#include <QStringList>

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>

namespace quorvane {

class PortalSession;
class PortalSource;

/// The clipboard as the portal shares it (org.freedesktop.portal.Clipboard): within a session of
/// the keyboard, from the user's consent to the session's end. There is no primary selection.
class PortalClipboard final : public QObject, public DataExchange, private DataDevice {
    Q_OBJECT

public:
    /// For each of what the portal does at once.
    static constexpr std::chrono::milliseconds patience{500};

    /// No longer name of a type is taken from the portal.
    static constexpr qsizetype longestType = 255;

    /// The queue must outlive it.
    PortalClipboard(std::shared_ptr<PortalDesktop> portal, MainQueue& queue);
    ~PortalClipboard() override;

    PortalClipboard(const PortalClipboard&) = delete;
    PortalClipboard& operator=(const PortalClipboard&) = delete;

    /// Asks for a part in the session, which has not been started yet. `done` runs when the portal
    /// has said something to that, unless the session goes before.
    void request(PortalSession& session, std::function<void()> done);

    /// The user has agreed. The session must live until end().
    void begin(const PortalSession& session);

    /// Nothing is shared any more.
    void end();

    [[nodiscard]] bool isShared() const { return m_session != nullptr; }

    /// Called when the portal does not take what we put there: then it does not share any more.
    /// Replaces an earlier handler.
    void onRefused(std::function<void()> handler) { m_refused = std::move(handler); }

    void follow(DataExchange::Handlers handlers) override { m_handlers = std::move(handlers); }

    [[nodiscard]] DataDevice* device() override;
    [[nodiscard]] std::shared_ptr<void> whenSettled(std::function<void()> done) override;

    /// Of what another program has copied; see DataOffer.
    [[nodiscard]] std::unique_ptr<OfferReading>
    read(const QString& type, qsizetype mostBytes, PipeReading::Callbacks callbacks);

    /// The source is going.
    void forget(const PortalSource* source);

private Q_SLOTS:
    void adoptOwner(const QDBusMessage& signal);
    void transfer(const QDBusMessage& signal);

private:
    [[nodiscard]] bool has(ClipboardKind kind) const override {
        return kind == ClipboardKind::General;
    }

    [[nodiscard]] std::unique_ptr<DataSource>
    makeSource(const QStringList& types, DataSource::Handlers handlers) override;
    void select(ClipboardKind kind, const DataSource* source) override;

    void listen();
    void tell(std::shared_ptr<DataOffer> offer);
    [[nodiscard]] std::shared_ptr<DataOffer> offerOf(const QStringList& types);
    [[nodiscard]] bool isOurs(const QDBusMessage& signal, QLatin1StringView signature) const;
    [[nodiscard]] QDBusMessage question(QStringView method) const;
    void give(const QString& type, std::uint32_t serial, const QDBusMessage& answer);
    void tellEnd(const QString& session, std::uint32_t serial, bool isWhole);

    std::shared_ptr<PortalDesktop> m_portal;
    MainQueue& m_queue;
    DataExchange::Handlers m_handlers;
    std::function<void()> m_refused = [] {
    };
    QString m_listenedOwner;
    QString m_path;                           ///< of the session that was asked for last
    std::optional<QStringList> m_early;       ///< what was told before it was shared
    const PortalSession* m_session = nullptr; ///< while it is shared
    const PortalSource* m_source = nullptr;   ///< what stands there, while that is ours
    int m_unconfirmed = 0;                    ///< selections that the portal has not answered
    std::size_t m_transfers = 0;              ///< for which the portal is to give a file
};

} // namespace quorvane
