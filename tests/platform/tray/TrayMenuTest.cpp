// SPDX-License-Identifier: MIT
#include "TrayMenu.h"

#include <QMenu>
#include <gtest/gtest.h>

namespace quorvane {
namespace {

using namespace Qt::StringLiterals;

TEST(TrayMenu, HasTheEntriesInTheirOrder) {
    int runs = 0;
    const auto menu = makeTrayMenu(
        {{u"Preferences…"_s,
          QKeySequence(Qt::CTRL | Qt::Key_Comma),
          [&] {
              ++runs;
          }},
         {},
         {u"Salt & Pepper"_s, {}, [&] {
              runs += 10;
          }}});
    const auto actions = menu->actions();
    ASSERT_EQ(actions.size(), 3);
    EXPECT_EQ(actions[0]->text(), u"Preferences…"_s);
    EXPECT_EQ(actions[0]->shortcut(), QKeySequence(Qt::CTRL | Qt::Key_Comma));
    EXPECT_TRUE(actions[1]->isSeparator());
    EXPECT_EQ(actions[2]->text(), u"Salt && Pepper"_s);
    actions[0]->trigger();
    EXPECT_EQ(runs, 1);
    actions[2]->trigger();
    EXPECT_EQ(runs, 11);
}

TEST(TrayMenu, OpensBelowTheIconOrAboveItAndInsideTheScreen) {
    const QRect screen(0, 28, 1000, 572); // a bar above
    const QSize menu(200, 100);

    struct Row {
        QRect icon;
        QPoint place;
    };

    for (const auto& [icon, place] :
         {Row{{600, 3, 22, 22}, {600, 25}},
          Row{{950, 3, 22, 22}, {800, 25}},
          Row{{-10, 3, 22, 22}, {0, 25}},
          Row{{600, 575, 22, 22}, {600, 475}},
          Row{{600, 478, 22, 22}, {600, 500}},    // fits to the last line
          Row{{600, 479, 22, 22}, {600, 379}}}) { // does not
        EXPECT_EQ(trayMenuPlace(icon, menu, screen), place) << icon.x() << ' ' << icon.y();
    }
}

} // namespace
} // namespace quorvane
