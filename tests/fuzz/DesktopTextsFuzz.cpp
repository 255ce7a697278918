// SPDX-License-Identifier: MIT
#include "Accelerator.h"
#include "BoundCommands.h"
#include "FuzzInput.h"
#include "GVariantText.h"
#include "KdeKeys.h"
#include "ShortcutTrigger.h"

#include <platform/PasteboardTypes.h>
#include <platform_dbus/BusSocket.h>
#include <platform_xdg/IniFile.h>
#include <testing/FakeKeyboardLayout.h>
#include <x11_appearance/XSettings.h>

#include <set>

using namespace quorvane;
using namespace Qt::StringLiterals;

namespace {

const KeyboardLayout& layout() {
    static const auto keys = [] {
        FakeKeyboardLayout made;
        made.setKey(2, u"d");
        made.setKey(9, u"\u05D4");
        return made;
    }();
    return keys;
}

void readShortcuts(const QString& text) {
    if (const auto accelerator = Accelerator::parse(text)) {
        demand(Accelerator::parse(accelerator->text()) == accelerator, "what is written is read");
        (void) accelerator->chord(layout());
    }
    if (const auto chord = shortcuttrigger::understood(text)) {
        const auto written = shortcuttrigger::preferred(*chord);
        demand(
            written.isEmpty() || shortcuttrigger::understood(written) == chord,
            "a trigger that is written is understood");
    }
}

void readVariants(const QString& text) {
    (void) gvarianttext::strings(text);
    (void) gvarianttext::string(text);
    demand(gvarianttext::string(gvarianttext::fromString(text)) == text, "a string comes back");
    const QStringList several{text, u"'"_s, text};
    demand(
        gvarianttext::strings(gvarianttext::fromStrings(several)) == several,
        "an array of strings comes back");
}

void readCommands(const QString& text) {
    BoundCommands commands(u"/ours/"_s);
    commands.addList(text);
    commands.addCustom(u"/ours/"_s, text);
    commands.addCustom(u"/another/"_s, text);
}

void readTypes(const QString& text) {
    const auto names = text.split(u'\n');
    const auto types = contentTypes(names);
    demand(std::set(types.begin(), types.end()).size() == std::size_t(types.size()), "each once");
    auto ordered = readingOrder(types);
    auto before = types;
    ordered.sort();
    before.sort();
    demand(ordered == before, "all are read");
}

} // namespace

/// Any text where the desktop's settings, tools and programs put theirs.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    FuzzInput input(data, size);
    const auto number = input.number<std::int32_t>();
    if (const auto chord = chordOfKdeKey(number, layout()))
        demand(kdeKeyOf(*chord, layout()).has_value(), "a key that was found has a number");
    const auto bytes = input.rest();
    (void) XSettings::parse(bytes);
    (void) IniFile::parse(bytes);
    const auto text = QString::fromUtf8(bytes);
    (void) BusSocket::inAddress(text, [](const char*) { return std::optional(u"/run"_s); });
    readShortcuts(text);
    readVariants(text);
    readCommands(text);
    readTypes(text);
    return 0;
}
