// SPDX-License-Identifier: MIT
#include "HelloMessage.h"

#include <QtEndian>

namespace quorvane {

namespace {

constexpr char littleEndian = 'l';
constexpr char methodCall = 1;
constexpr char protocolVersion = 1;
constexpr char noFlags = 0;

// Codes of the header's fields.
constexpr char pathField = 1;
constexpr char interfaceField = 2;
constexpr char memberField = 3;
constexpr char destinationField = 6;

QByteArray number(quint32 value) {
    QByteArray bytes(sizeof value, '\0');
    qToLittleEndian(value, bytes.data());
    return bytes;
}

QByteArray padded(QByteArray bytes) {
    constexpr qsizetype alignment = 8;
    while (bytes.size() % alignment != 0)
        bytes.append('\0');
    return bytes;
}

/// Each field starts at a multiple of eight: its code, its type as a signature, its text.
void append(QByteArray& fields, char code, char type, const QByteArray& text) {
    const char signature[]{code, 1, type, 0};
    fields = padded(fields) + QByteArray(signature, sizeof signature) +
             number(static_cast<quint32>(text.size())) + text + '\0';
}

} // namespace

QByteArray helloMessage() {
    constexpr quint32 bodySize = 0;
    constexpr quint32 serial = 1;
    QByteArray fields;
    append(fields, pathField, 'o', "/org/freedesktop/DBus");
    append(fields, interfaceField, 's', "org.freedesktop.DBus");
    append(fields, memberField, 's', "Hello");
    append(fields, destinationField, 's', "org.freedesktop.DBus");
    const char start[]{littleEndian, methodCall, noFlags, protocolVersion};
    return QByteArray(start, sizeof start) + number(bodySize) + number(serial) +
           number(static_cast<quint32>(fields.size())) + padded(fields);
}

} // namespace quorvane
