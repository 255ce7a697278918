// SPDX-License-Identifier: MIT
#include "SelectionOffers.h"

#include <ostream>
#include <random>

namespace quorvane {

using namespace Qt::StringLiterals;

namespace {

QJsonObject orderFor(const Offer& offer) {
    return {
        {u"target"_s, offer.entry.type},
        {u"type"_s, offer.entry.encoding},
        {u"units"_s, offer.entry.unitBits},
        {u"data"_s, QString::fromLatin1(offer.entry.bytes.toBase64())},
        {u"manner"_s, offer.manner},
    };
}

} // namespace

std::unique_ptr<ForeignProgram>
startOwner(const std::vector<Offer>& offers, const OwnerTraits& traits) {
    QJsonArray described;
    for (const auto& offer : offers)
        described.append(orderFor(offer));
    QJsonObject order{
        {u"selection"_s, traits.selection},
        {u"targets"_s, traits.tellsTargets},
        {u"offers"_s, described},
        {u"flood"_s, traits.flood},
    };
    if (!traits.names.isEmpty())
        order.insert(u"names"_s, QJsonArray::fromStringList(traits.names));
    auto owner = std::make_unique<ForeignProgram>(u"selection_owner.py"_s, order);
    EXPECT_EQ(owner->nextReport(), u"owned"_s);
    return owner;
}

QJsonValue readAs(const QString& way, const QJsonArray& arguments, const QString& selection) {
    ForeignProgram reader(
        u"selection_reader.py"_s,
        {{u"selection"_s, selection}, {u"way"_s, way}, {u"arguments"_s, arguments}});
    const auto report = reader.nextReport();
    EXPECT_FALSE(report.isUndefined()) << "the reader failed";
    return report;
}

PasteboardItem contentsOf(const QString& selection) {
    return itemFrom(readAs(u"contents"_s, {}, selection));
}

PasteboardEntry entryFrom(const QJsonValue& description) {
    return {
        description[u"target"_s].toString(),
        QByteArray::fromBase64(description[u"data"_s].toString().toLatin1()),
        description[u"type"_s].toString(),
        description[u"units"_s].toInt(),
    };
}

PasteboardItem itemFrom(const QJsonValue& descriptions) {
    PasteboardItem item;
    for (const auto& description : descriptions.toArray())
        item.push_back(entryFrom(description));
    return item;
}

PasteboardItem itemOf(const std::vector<Offer>& offers) {
    PasteboardItem item;
    for (const auto& offer : offers)
        item.push_back(offer.entry);
    return item;
}

QStringList typesOf(const PasteboardItem& item) {
    QStringList types;
    for (const auto& entry : item)
        types.append(entry.type);
    return types;
}

Offer textOffer(const QByteArray& text) {
    return {{u"UTF8_STRING"_s, text, u"UTF8_STRING"_s}};
}

QByteArray noise(qsizetype size) {
    std::minstd_rand generator;
    QByteArray bytes(size, '\0');
    for (auto& byte : bytes)
        byte = static_cast<char>(generator() >> 8);
    return bytes;
}

void PrintTo(const PasteboardEntry& entry, std::ostream* stream) {
    *stream << entry.type.toStdString() << " as " << entry.encoding.toStdString() << '/'
            << entry.unitBits << ", " << entry.bytes.size() << " bytes: "
            << entry.bytes.first(std::min(entry.bytes.size(), qsizetype{24})).toHex().toStdString();
}

} // namespace quorvane
