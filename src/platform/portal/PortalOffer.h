// SPDX-License-Identifier: MIT
#pragma once

#include <platform/ForgottenBytes.h>
#include <platform_offers/DataDevice.h>
#include <platform_portal/PortalClipboard.h>

#include <QPointer>
#include <QStringList>

#include <memory>
#include <optional>
#include <utility>

namespace quorvane {

/// What another program has copied, as the portal hands it on.
class PortalOffer final : public DataOffer {
public:
    /// Where they come from. Of those that are only guessed, one that is empty is not there.
    enum class Types { Told, Guessed };

    PortalOffer(PortalClipboard& clipboard, QStringList types, Types from)
        : m_clipboard(&clipboard),
          m_types(std::move(types)),
          m_from(from) {}

    [[nodiscard]] QStringList types() const override { return m_types; }

    [[nodiscard]] std::unique_ptr<OfferReading>
    read(const QString& type, qsizetype mostBytes, PipeReading::Callbacks callbacks) override {
        if (!m_clipboard)
            return nullptr;
        if (m_from == Types::Guessed)
            callbacks.done = [done =
                                  std::move(callbacks.done)](std::optional<ForgottenBytes> bytes) {
                done(bytes && bytes->isEmpty() ? std::nullopt : std::move(bytes));
            };
        return m_clipboard->read(type, mostBytes, std::move(callbacks));
    }

private:
    QPointer<PortalClipboard> m_clipboard;
    QStringList m_types;
    Types m_from;
};

} // namespace quorvane
