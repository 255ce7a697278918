// SPDX-License-Identifier: MIT
#include "BusPeer.h"
#include "FuzzInput.h"
#include "FuzzSession.h"
#include "KdeSequence.h"
#include "PortalShortcutEntry.h"

#include <QDBusArgument>
#include <QDBusMetaType>
#include <QDBusObjectPath>
#include <QDBusVariant>

#include <array>

using namespace quorvane;
using namespace Qt::StringLiterals;

namespace {

constexpr int deepest = 6;

/// As portals send a colour.
struct Triple {
    std::array<double, 3> parts{};
};

QDBusArgument& operator<<(QDBusArgument& argument, const Triple& triple) {
    argument.beginStructure();
    for (const auto part : triple.parts)
        argument << part;
    argument.endStructure();
    return argument;
}

const QDBusArgument& operator>>(const QDBusArgument& argument, Triple& triple) {
    argument.beginStructure();
    for (auto& part : triple.parts)
        argument >> part;
    argument.endStructure();
    return argument;
}

QString textIn(FuzzInput& input) {
    // Those that are looked for, and any other.
    static const std::array<QString, 14> known{
        u"org.freedesktop.appearance"_s,
        u"org.gnome.desktop.interface"_s,
        u"color-scheme"_s,
        u"accent-color"_s,
        u"contrast"_s,
        u"reduced-motion"_s,
        u"enable-animations"_s,
        u"toggle"_s,
        u"org.quorvane.Quorvane"_s,
        u"session_handle"_s,
        u"shortcuts"_s,
        u"trigger_description"_s,
        u"restore_token"_s,
        QString()};
    const auto number = input.number<std::uint8_t>();
    if (number < known.size())
        return known[number];
    // Libraries send no text with a zero in it.
    return QString::fromUtf8(input.piece()).remove(QChar());
}

QVariantMap mapIn(FuzzInput& input, int depth);

QVariant valueIn(FuzzInput& input, int depth) {
    if (depth >= deepest)
        return textIn(input);
    switch (input.below(15)) {
    case 0:
        return input.flag();
    case 1:
        return QVariant::fromValue(input.number<std::uint8_t>());
    case 2:
        return input.number<std::int32_t>();
    case 3:
        return input.number<std::uint32_t>();
    case 4:
        return input.number<qlonglong>();
    case 5:
        return input.number<double>();
    case 6:
        return QVariant::fromValue(QDBusVariant(valueIn(input, depth + 1)));
    case 7:
        return QVariant::fromValue(QDBusObjectPath(u"/a/b%1"_s.arg(input.number<quint16>())));
    case 8:
        return mapIn(input, depth + 1);
    case 9:
        return QVariantList{valueIn(input, depth + 1), valueIn(input, depth + 1)};
    case 10:
        return QStringList{textIn(input), textIn(input)};
    case 11:
        return QVariant::fromValue(
            Triple{{input.number<double>(), input.number<double>(), input.number<double>()}});
    case 12:
        return portalshortcuts::sent({{textIn(input), mapIn(input, depth + 1)}});
    case 13:
        return QVariant::fromValue(QList<KdeSequence>{
            {{input.number<int>(), input.number<int>()}}, kdeSequenceOf(input.number<int>())});
    default:
        return textIn(input);
    }
}

QVariantMap mapIn(FuzzInput& input, int depth) {
    QVariantMap map;
    for (int count = input.below(4); count > 0; --count)
        map.insert(textIn(input), valueIn(input, depth));
    return map;
}

QVariantList argumentsIn(FuzzInput& input) {
    QVariantList arguments;
    for (int count = input.below(5); count > 0; --count)
        arguments.append(valueIn(input, 0));
    return arguments;
}

} // namespace

/// Any arguments of signals, calls and answers that come over the bus.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    makeFuzzSession();
    registerKdeSequence();
    qDBusRegisterMetaType<Triple>();
    static BusPeer peer;
    FuzzInput input(data, size);
    for (int messages = 0; !input.isAtEnd() && messages < 16; ++messages) {
        const auto kind = input.number<std::uint8_t>();
        if (kind < 64)
            peer.answerWith(argumentsIn(input));
        else if (kind < 96)
            peer.provoke(kind % 3);
        else
            peer.send(kind, argumentsIn(input));
    }
    peer.settle();
    return 0;
}
