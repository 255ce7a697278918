// SPDX-License-Identifier: MIT
#include <hotkey/BindingLine.h>
#include <testing/FakeKeyboardLayout.h>

#include <gtest/gtest.h>

#include <map>

namespace quorvane {
namespace {

using namespace Qt::StringLiterals;
using enum BindingSyntax;

const auto command = u"gdbus call --session -d org.quorvane.Quorvane -o /org/quorvane/Quorvane "
                     "-m org.freedesktop.Application.ActivateAction toggle '[]' '{}'"_s;

constexpr auto all =
    combomodifier::control | combomodifier::option | combomodifier::shift | combomodifier::command;

class BindingLineTest : public testing::Test {
protected:
    BindingLineTest() {
        layout.setKey(2, u"d");
        layout.setKey(40, u"л");
        layout.setKey(keycode::comma, u",");
    }

    FakeKeyboardLayout layout;
};

TEST_F(BindingLineTest, IsTheRecordedShortcutInTheWordsOfEachConfiguration) {
    struct Row {
        BindingSyntax syntax;
        HotKeyCombo combo;
        QString line;
    };

    const HotKeyCombo standard;
    const HotKeyCombo cyrillic{40, combomodifier::command};
    const HotKeyCombo comma{keycode::comma, combomodifier::option};
    const HotKeyCombo page{keycode::pageDown, all};
    const std::vector<Row> rows{
        {Sway, standard, u"bindsym --to-code Ctrl+Shift+Mod4+d exec "_s + command},
        {Sway, cyrillic, u"bindcode Mod4+45 exec "_s + command},
        {Sway, comma, u"bindsym --to-code Mod1+comma exec "_s + command},
        {Sway, page, u"bindsym --to-code Ctrl+Mod1+Shift+Mod4+Page_Down exec "_s + command},
        {I3, standard, u"bindsym Ctrl+Shift+Mod4+d exec --no-startup-id "_s + command},
        {I3, cyrillic, u"bindcode Mod4+45 exec --no-startup-id "_s + command},
        {Hyprland, standard, u"bind = CTRL SHIFT SUPER, d, exec, "_s + command},
        {Hyprland, cyrillic, u"bind = SUPER, code:45, exec, "_s + command},
        {River, standard, u"riverctl map normal Control+Shift+Super d spawn \""_s + command + u'"'},
        {River, cyrillic, u"riverctl map normal Super k spawn \""_s + command + u'"'},
        {Niri,
         standard,
         u"Control+Shift+Super+d { spawn \"sh\" \"-c\" \""_s + command + u"\"; }"_s},
        {Command, standard, command},
    };
    for (const auto& [syntax, combo, line] : rows)
        EXPECT_EQ(bindingLine(syntax, combo, layout), line);
}

TEST_F(BindingLineTest, LayoutThatCannotBeAskedLeavesThePosition) {
    layout.setAvailable(false);
    EXPECT_EQ(bindingLine(Sway, {}, layout), u"bindcode Ctrl+Shift+Mod4+40 exec "_s + command);
    EXPECT_TRUE(bindingLine(River, {}, layout)
                    .startsWith(u"riverctl map normal "
                                "Control+Shift+Super d "_s));
}

TEST_F(BindingLineTest, ShortcutThatNoKeyboardHasGivesNoLine) {
    for (const auto syntax : {Sway, Hyprland, River, I3, Niri}) {
        EXPECT_EQ(bindingLine(syntax, {2, 0x40000}, layout), QString());
        EXPECT_EQ(bindingLine(syntax, {2, 0}, layout), QString()) << "no modifier";
        EXPECT_EQ(bindingLine(syntax, {0xffff, 0x100}, layout), QString());
    }
}

TEST_F(BindingLineTest, FirstChoiceIsWhoHasAnnouncedItself) {
    const auto announced = [](const std::map<QString, QString>& variables) {
        return announcedSyntax([&](const char* name) -> std::optional<QString> {
            const auto found = variables.find(QString::fromLatin1(name));
            return found == variables.end() ? std::nullopt : std::optional(found->second);
        });
    };
    EXPECT_EQ(announced({{u"SWAYSOCK"_s, u"/run/sway"_s}, {u"I3SOCK"_s, u"/run/sway"_s}}), Sway);
    EXPECT_EQ(announced({{u"I3SOCK"_s, u"/run/i3"_s}}), I3);
    EXPECT_EQ(announced({{u"HYPRLAND_INSTANCE_SIGNATURE"_s, u"1a2b"_s}}), Hyprland);
    EXPECT_EQ(announced({{u"NIRI_SOCKET"_s, u"/run/niri"_s}}), Niri);
    EXPECT_EQ(announced({{u"SWAYSOCK"_s, QString()}}), Command);
    EXPECT_EQ(announced({}), Command);
    EXPECT_EQ(announcedSyntax({}), Command);
}

} // namespace
} // namespace quorvane
