// SPDX-License-Identifier: MIT
#pragma once

#include "ForeignProgram.h"

#include <platform/PasteboardContents.h>

#include <QJsonArray>
#include <gtest/gtest.h>

#include <memory>
#include <vector>

namespace quorvane {

inline const QString clipboardSelection = QStringLiteral("CLIPBOARD");
inline const QString primarySelection = QStringLiteral("PRIMARY");

/// One target of a foreign owner, and how it is given; selection_owner.py tells the manners.
struct Offer {
    PasteboardEntry entry;
    QString manner = QStringLiteral("plain");
};

struct OwnerTraits {
    QString selection = clipboardSelection;
    bool tellsTargets = true;
    QStringList names{}; ///< what it claims to offer, if not exactly its offers
    int flood = 0;       ///< and how much more, which has no name
};

/// Starts a program that owns a selection, and waits until it does.
[[nodiscard]] std::unique_ptr<ForeignProgram>
startOwner(const std::vector<Offer>& offers, const OwnerTraits& traits = {});

/// What another program reads from a selection, each target on its own.
[[nodiscard]] PasteboardItem contentsOf(const QString& selection = clipboardSelection);

/// Another program asks in one of the ways that selection_reader.py tells.
[[nodiscard]] QJsonValue readAs(
    const QString& way,
    const QJsonArray& arguments = {},
    const QString& selection = clipboardSelection);

[[nodiscard]] PasteboardEntry entryFrom(const QJsonValue& description);
[[nodiscard]] PasteboardItem itemFrom(const QJsonValue& descriptions);
[[nodiscard]] PasteboardItem itemOf(const std::vector<Offer>& offers);
[[nodiscard]] QStringList typesOf(const PasteboardItem& item);

/// A text that a program offers under its most usual name.
[[nodiscard]] Offer textOffer(const QByteArray& text);

/// Bytes without a pattern that a mistake in their order could hide in; always the same.
[[nodiscard]] QByteArray noise(qsizetype size);

void PrintTo(const PasteboardEntry& entry, std::ostream* stream);

} // namespace quorvane
