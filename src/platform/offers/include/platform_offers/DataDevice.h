// SPDX-License-Identifier: MIT
#pragma once

#include <platform_offers/OfferReading.h>
#include <platform_offers/PipeReading.h>
#include <platform_offers/PipeWriting.h>

#include <QString>
#include <QStringList>

#include <functional>
#include <memory>

namespace quorvane {

/// Which of the two clipboards.
enum class ClipboardKind { General, Primary };

/// Contents that somebody offers, ourselves included.
class DataOffer {
public:
    /// Of an owner's types, the first.
    static constexpr qsizetype mostTypes = 256;

    virtual ~DataOffer() = default;

    /// In the owner's order.
    [[nodiscard]] virtual QStringList types() const = 0;

    /// Has the owner write that type, and reads it; see PipeReading. Null where that cannot be.
    [[nodiscard]] virtual std::unique_ptr<OfferReading>
    read(const QString& type, qsizetype mostBytes, PipeReading::Callbacks callbacks) = 0;
};

/// Contents that we offer, for as long as it lives.
class DataSource {
public:
    struct Handlers {
        /// Somebody wants that type in the file, which is the handler's to close. `ended` is to be
        /// called once, with whether all of it was taken; maybe after the source has gone.
        std::function<void(const QString& type, int descriptor, PipeWriting::Ended ended)> send;
        /// Other contents stand there now. The source may be destroyed.
        std::function<void()> cancelled;
    };

    virtual ~DataSource() = default;
};

/// The clipboards of a seat, with or without the focus, by whatever has them. Sources and offers
/// may outlive it.
class DataDevice {
public:
    struct Handlers {
        /// What stands on a clipboard; null for nothing. Told for what we offer, too.
        std::function<void(ClipboardKind, std::shared_ptr<DataOffer>)> offered;
        /// The seat has gone. The device may be destroyed.
        std::function<void()> finished;
    };

    virtual ~DataDevice() = default;

    [[nodiscard]] virtual bool has(ClipboardKind clipboard) const = 0;

    [[nodiscard]] virtual std::unique_ptr<DataSource>
    makeSource(const QStringList& types, DataSource::Handlers handlers) = 0;

    /// Puts the source, made by this device and used once, on a clipboard that it has; none empties
    /// that.
    virtual void select(ClipboardKind clipboard, const DataSource* source) = 0;
};

} // namespace quorvane
