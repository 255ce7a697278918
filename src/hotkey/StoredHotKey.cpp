// SPDX-License-Identifier: MIT
#include <hotkey/StoredHotKey.h>
#include <loop/Failure.h>

#include <limits>

namespace quorvane {

using namespace Qt::StringLiterals;

namespace {

constexpr auto anyModifier =
    combomodifier::command | combomodifier::shift | combomodifier::option | combomodifier::control;

bool isKeyCode(qint64 number) {
    return number >= 0 && number <= std::numeric_limits<std::uint16_t>::max();
}

bool isModifierSet(qint64 number) {
    return number >= 0 && number <= std::numeric_limits<std::uint32_t>::max() &&
           (number & anyModifier) != 0;
}

} // namespace

HotKeyCombo storedHotKey(const DefaultsStore& store) {
    const auto keyCode = setting::hotKeyCode.storedIn(store);
    const auto modifiers = setting::hotKeyModifiers.storedIn(store).value_or(0);
    if (!keyCode || (isKeyCode(*keyCode) && isModifierSet(modifiers)))
        return HotKeyCombo::load(store);
    reportFailure(
        u"the stored shortcut (%1 %2, %3 %4) is none; the default one is used instead"_s.arg(
            setting::hotKeyCode.key,
            QString::number(*keyCode),
            setting::hotKeyModifiers.key,
            QString::number(modifiers)));
    return {};
}

} // namespace quorvane
