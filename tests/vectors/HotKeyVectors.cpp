// SPDX-License-Identifier: MIT
#include "StoppedProcess.h"
#include "VectorKinds.h"

#include <hotkey/HotKeyCombo.h>
#include <settings/JsonDefaultsStore.h>
#include <testing/FakeKeyboardLayout.h>
#include <testing/ImmediateSettingsWriter.h>

#include <QTemporaryFile>

namespace quorvane {

using namespace Qt::StringLiterals;

namespace {

/// `"name": number` for a settings file, with the digits as the row has them; empty for null.
QByteArray storedNumber(const VectorRow& row, const char* name) {
    if (row.value(name).isNull())
        return {};
    return QByteArray("\"") + name + "\": " + row.text(name).toUtf8();
}

void writeSettings(QTemporaryFile& file, const QByteArrayList& members) {
    QByteArrayList present = members;
    present.removeAll({});
    if (!file.open() || file.write("{" + present.join(", ") + "}") < 0 || !file.flush())
        throw MalformedRow("no settings file could be made for the row");
}

} // namespace

Comparison checkHotKeyFlags(const VectorRow& row) {
    return {row.value("carbon"), qint64{toCarbonModifiers({row.text("flags").toULongLong()})}};
}

Comparison checkHotKeyDisplay(const VectorRow& row) {
    const HotKeyCombo combo{0, static_cast<std::uint32_t>(row.number("modifiers"))};
    auto labels = combo.displayKeys(FakeKeyboardLayout());
    labels.removeLast();
    return {row.array("labels"), QJsonArray::fromStringList(labels)};
}

Comparison checkHotKeyLoad(const VectorRow& row) {
    QTemporaryFile file;
    writeSettings(file, {storedNumber(row, "hotKeyCode"), storedNumber(row, "hotKeyModifiers")});
    ImmediateSettingsWriter writer;
    const JsonDefaultsStore store(file.fileName(), writer);
    if (stopsProcess([&] { static_cast<void>(HotKeyCombo::load(store)); }))
        return {row.value("expected"), "fatal"_L1};
    const auto combo = HotKeyCombo::load(store);
    return {
        row.value("expected"),
        QJsonObject{
            {"keyCode"_L1, qint64{combo.keyCode}}, {"modifiers"_L1, qint64{combo.modifiers}}}};
}

Comparison checkHotKeyKeyChar(const VectorRow& row) {
    std::u16string typed;
    for (const auto unit : row.array("units"))
        typed.push_back(static_cast<char16_t>(unit.toInt()));
    FakeKeyboardLayout layout;
    layout.setKey(0, typed);
    return {row.text("label"), HotKeyCombo{0, 0}.keyChar(layout)};
}

} // namespace quorvane
