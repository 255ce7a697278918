// SPDX-License-Identifier: MIT
#include "ShortcutTrigger.h"

#include <gtest/gtest.h>

namespace quorvane {
namespace {

using namespace Qt::StringLiterals;
using shortcuttrigger::preferred;
using shortcuttrigger::understood;

constexpr auto controlShift = modifier::control | modifier::shift;

TEST(ShortcutTrigger, IsWrittenInTheWordsOfPortals) {
    EXPECT_EQ(preferred({2, controlShift | modifier::command}), u"CTRL+SHIFT+LOGO+d"_s);
    EXPECT_EQ(preferred({96, modifier::option}), u"ALT+F5"_s);
    EXPECT_EQ(preferred({49, modifier::command}), u"LOGO+space"_s);
}

TEST(ShortcutTrigger, NoWishIsMadeForAKeyWithoutASureName) {
    EXPECT_EQ(preferred({10, modifier::control}), QString());
    EXPECT_EQ(preferred({0x100 + 99, modifier::control}), QString());
}

TEST(ShortcutTrigger, DescriptionsOfUsualKindsAreUnderstood) {
    const KeyChord all{2, controlShift | modifier::option | modifier::command};
    for (const auto& text :
         {u"Ctrl+Alt+Shift+Meta+D"_s,
          u"Meta + Ctrl + Alt + Shift + D"_s,
          u"<Shift><Control><Alt><Super>d"_s,
          u"Press <Shift><Control><Alt><Super>d"_s,
          u"CTRL+ALT+SHIFT+LOGO+d"_s})
        EXPECT_EQ(understood(text), all) << text.toStdString();
    EXPECT_EQ(understood(u"Ctrl+F12"), (KeyChord{111, modifier::control}));
}

TEST(ShortcutTrigger, OthersAreNot) {
    for (const auto& text :
         {QString(),
          u"D"_s,
          u"Ctrl+"_s,
          u"+"_s,
          u"Strg+D"_s,
          u"Ctrl+Ö"_s,
          u"press Ctrl+D"_s,
          u"<Control"_s,
          u"Press <Control>d in Settings"_s,
          u"Ctrl+D, Ctrl+K"_s,
          QString(100'000, u'+')})
        EXPECT_EQ(understood(text), std::nullopt) << text.left(40).toStdString();
}

} // namespace
} // namespace quorvane
