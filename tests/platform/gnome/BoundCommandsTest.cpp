// SPDX-License-Identifier: MIT
#include "BoundCommands.h"

#include <gmock/gmock.h>

namespace quorvane {
namespace {

using namespace Qt::StringLiterals;
using testing::ElementsAre;

const auto own = u"/custom/quorvane/"_s;

// As `gsettings list-recursively` of GLib 2.74 writes it.
TEST(BoundCommands, ReadsTheListsOfTheDesktop) {
    BoundCommands commands(own);
    commands.addList(uR"(org.gnome.desktop.wm.keybindings close ['<Alt>F4']
org.gnome.desktop.wm.keybindings switch-to-workspace-left ['<Super>Page_Up', '<Control><Alt>Left']
org.gnome.desktop.wm.keybindings raise @as []
org.gnome.settings-daemon.plugins.media-keys custom-keybindings ['/custom/quorvane/', '/custom/0/']
org.gnome.settings-daemon.plugins.media-keys volume-step 6
org.gnome.settings-daemon.plugins.media-keys screensaver-static ['XF86ScreenSaver']
org.gnome.example old-one '<Super>o'
)");
    EXPECT_THAT(
        commands.others(),
        ElementsAre(
            BoundCommands::Binding{u"<Alt>F4"_s, u"Close"_s},
            BoundCommands::Binding{u"<Super>Page_Up"_s, u"Switch to workspace left"_s},
            BoundCommands::Binding{u"<Control><Alt>Left"_s, u"Switch to workspace left"_s},
            BoundCommands::Binding{u"XF86ScreenSaver"_s, u"Screensaver"_s},
            BoundCommands::Binding{u"<Super>o"_s, u"Old one"_s}));
    EXPECT_EQ(commands.customPaths(), (QStringList{own, u"/custom/0/"_s}));
    EXPECT_EQ(commands.own(), std::nullopt);
}

TEST(BoundCommands, TellsOursFromWhatOthersHaveAdded) {
    BoundCommands commands(own);
    commands.addCustom(own, uR"(org.gnome.custom binding '<Super>d'
org.gnome.custom command 'gdbus call'
org.gnome.custom name 'Quorvane'
)");
    commands.addCustom(u"/custom/0/"_s, uR"(org.gnome.custom binding '<Super>t'
org.gnome.custom name 'My terminal'
)");
    EXPECT_EQ(commands.own(), u"<Super>d"_s);
    EXPECT_THAT(
        commands.others(), ElementsAre(BoundCommands::Binding{u"<Super>t"_s, u"My terminal"_s}));
}

TEST(BoundCommands, LeaveOutWhatIsNotWhole) {
    BoundCommands commands(own);
    commands.addList(u"\n \nschema\nschema key\nschema key ['open\nschema  ['<Super>d']\n");
    EXPECT_EQ(commands.customPaths(), std::nullopt);
    commands.addList(u"schema custom-keybindings 7\n");
    EXPECT_EQ(commands.customPaths(), std::nullopt);
}

} // namespace
} // namespace quorvane
