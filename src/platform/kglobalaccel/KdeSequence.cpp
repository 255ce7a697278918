// SPDX-License-Identifier: MIT
#include "KdeSequence.h"

#include <QDBusMetaType>

namespace quorvane {

namespace {

constexpr qsizetype keysOfSequence = 4;

} // namespace

KdeSequence kdeSequenceOf(int key) {
    KdeSequence sequence{{key}};
    sequence.keys.resize(keysOfSequence);
    return sequence;
}

int keyOf(const KdeSequence& sequence) {
    const bool isOne = sequence.keys.value(1) == 0;
    return isOne ? sequence.keys.value(0) : 0;
}

void registerKdeSequence() {
    qDBusRegisterMetaType<KdeSequence>();
    qDBusRegisterMetaType<QList<KdeSequence>>();
}

QDBusArgument& operator<<(QDBusArgument& argument, const KdeSequence& sequence) {
    argument.beginStructure();
    argument << sequence.keys;
    argument.endStructure();
    return argument;
}

const QDBusArgument& operator>>(const QDBusArgument& argument, KdeSequence& sequence) {
    argument.beginStructure();
    argument >> sequence.keys;
    argument.endStructure();
    return argument;
}

} // namespace quorvane
