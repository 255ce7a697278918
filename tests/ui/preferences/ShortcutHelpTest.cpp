// SPDX-License-Identifier: MIT
#include "PreferencesFixture.h"

#include <controls/SectionColumn.h>
#include <hotkey/ShortcutChord.h>

namespace quorvane {
namespace {

using namespace Qt::StringLiterals;
using namespace physicalkey;

constexpr KeyChord standard{2, modifier::control | modifier::shift | modifier::command};
constexpr KeyChord other{40, modifier::control | modifier::option};

/// A desktop that lets no program take a shortcut.
class ShortcutHelpTest : public PreferencesFixture {
protected:
    ShortcutHelpTest() {
        activity = ShortcutRecorder::Activity::Unavailable;
        shortcuts.onChanged([this] {
            if (view)
                view->refreshSoon();
        });
    }

    ~ShortcutHelpTest() override {
        shortcuts.onChanged([] {});
    }

    void openOn(const QString& desktop) {
        shortcuts.setDesktopName(desktop);
        openView();
    }

    bool hasButton(const QString& name) {
        const auto* found = widgetByRole(*view, QAccessible::Button, name);
        return found != nullptr && found->isVisible();
    }

    void press(const QString& name) {
        QTest::mouseClick(&button(name), Qt::LeftButton);
        queue.run();
    }

    int count(const std::string& call) {
        int found = 0;
        for (const auto& entry : log.calls())
            found += entry.what == call ? 1 : 0;
        return found;
    }
};

TEST_F(ShortcutHelpTest, IsAbsentWhereThePressesReachTheProgram) {
    activity = ShortcutRecorder::Activity::Active;
    openOn(u"GNOME"_s);
    EXPECT_FALSE(hasButton(u"Add to GNOME shortcuts"_s));
    EXPECT_FALSE(hasButton(u"Copy"_s));
    EXPECT_TRUE(field().hasFocus());
}

TEST_F(ShortcutHelpTest, EntryCanBeTakenOutAlsoWhereItHasThePressesReachTheProgram) {
    activity = ShortcutRecorder::Activity::Active;
    shortcuts.setBound(standard);
    openOn(u"GNOME"_s);
    EXPECT_TRUE(field().hasFocus()) << "nothing is left to do";
    press(u"Remove"_s);
    EXPECT_EQ(shortcuts.bound(), std::nullopt);
}

TEST_F(ShortcutHelpTest, OneClickAddsTheShortcutToTheDesktopsListAndOneTakesItOut) {
    openOn(u"GNOME"_s);
    EXPECT_FALSE(shows(u"Global shortcuts are not available on this desktop."_s));
    EXPECT_TRUE(shows(u"To use this shortcut, add it to the shortcuts of GNOME."_s));
    EXPECT_FALSE(hasButton(u"Remove"_s));
    EXPECT_TRUE(button(u"Add to GNOME shortcuts"_s).hasFocus());
    press(u"Add to GNOME shortcuts"_s);
    EXPECT_EQ(shortcuts.bound(), standard);
    EXPECT_TRUE(shows(u"It is in the shortcuts of GNOME."_s));
    EXPECT_FALSE(hasButton(u"Add to GNOME shortcuts"_s));
    press(u"Remove"_s);
    EXPECT_EQ(shortcuts.bound(), std::nullopt);
    EXPECT_TRUE(hasButton(u"Add to GNOME shortcuts"_s));
    EXPECT_FALSE(hasButton(u"Remove"_s));
}

TEST_F(ShortcutHelpTest, FocusStaysWithWhatIsLeftToPress) {
    openOn(u"GNOME"_s);
    QTest::keyClick(view->windowHandle(), Qt::Key_Space);
    queue.run();
    EXPECT_TRUE(button(u"Remove"_s).hasFocus());
    QTest::keyClick(view->windowHandle(), Qt::Key_Return);
    queue.run();
    EXPECT_TRUE(button(u"Add to GNOME shortcuts"_s).hasFocus());
}

TEST_F(ShortcutHelpTest, ListIsReadAnewWhenThePreferencesShow) {
    openOn(u"GNOME"_s);
    view->hide();
    const int before = count("refresh shortcuts");
    view->show();
    EXPECT_EQ(count("refresh shortcuts"), before + 1);
}

TEST_F(ShortcutHelpTest, EntryWithOtherKeysIsToldAndChanged) {
    shortcuts.setBound(other);
    openOn(u"GNOME"_s);
    EXPECT_TRUE(shows(u"The shortcuts of GNOME still have Ctrl+Alt+K for Quorvane."_s));
    EXPECT_TRUE(hasButton(u"Remove"_s));
    press(u"Change in GNOME shortcuts"_s);
    EXPECT_EQ(shortcuts.bound(), standard);
}

TEST_F(ShortcutHelpTest, ShortcutOfAnotherCommandIsNamedAndAnotherOneIsRecorded) {
    shortcuts.setHolder(standard, u"Lock screen"_s);
    openOn(u"GNOME"_s);
    EXPECT_TRUE(shows(u"In the shortcuts of GNOME, this one belongs to “Lock screen”."_s));
    EXPECT_FALSE(hasButton(u"Add to GNOME shortcuts"_s));
    press(u"Record another shortcut"_s);
    EXPECT_TRUE(find<ShortcutRecorder>(QAccessible::Grouping, u"Invoke Quorvane"_s).isRecording());
    keyboard->type(k, {control, alt});
    queue.run();
    EXPECT_EQ(shortcuts.bound(), std::nullopt) << "only by a press of the button";
    press(u"Add to GNOME shortcuts"_s);
    EXPECT_EQ(shortcuts.bound(), other);
}

TEST_F(ShortcutHelpTest, WithoutAListThereIsALineToPaste) {
    syntax = BindingSyntax::Sway;
    openOn({});
    EXPECT_TRUE(shows(u"Global shortcuts are not available on this desktop."_s));
    const auto line = bindingLine(BindingSyntax::Sway, {}, layout);
    EXPECT_TRUE(shows(line));
    press(u"Copy"_s);
    EXPECT_EQ(copied, QStringList(line));
    EXPECT_TRUE(shows(u"Copied"_s));
}

TEST_F(ShortcutHelpTest, LineIsForTheRecordedShortcut) {
    syntax = BindingSyntax::Sway;
    openOn({});
    press(u"Copy"_s);
    press(u"Record new shortcut"_s);
    keyboard->type(k, {control, alt});
    queue.run();
    EXPECT_TRUE(shows(bindingLine(BindingSyntax::Sway, comboOf(other), layout)));
    EXPECT_FALSE(shows(u"Copied"_s)) << "not this line";
}

TEST_F(ShortcutHelpTest, AnotherWindowManagerIsChosenByKeyboard) {
    syntax = BindingSyntax::Sway;
    openOn({});
    const auto& choice = find<QWidget>(QAccessible::ComboBox, u"Window manager"_s);
    EXPECT_TRUE(choice.hasFocus());
    QTest::keyClick(view->windowHandle(), Qt::Key_Down);
    EXPECT_TRUE(shows(bindingLine(BindingSyntax::Hyprland, {}, layout)));
}

TEST_F(ShortcutHelpTest, AllOtherDesktopsGetTheCommand) {
    openOn({});
    EXPECT_TRUE(
        shows(u"In the keyboard settings of your desktop, have the shortcut run this command:"_s));
    EXPECT_TRUE(shows(toggleCommand()));
}

TEST_F(ShortcutHelpTest, LineThatCouldNotBeCopiedSaysSo) {
    canCopy = false;
    openOn({});
    press(u"Copy"_s);
    EXPECT_TRUE(shows(u"Could not copy"_s));
}

TEST_F(ShortcutHelpTest, FirstOfferIsSeenAtOnce) {
    syntax = BindingSyntax::Sway;
    openOn({});
    const auto& area = *view->findChild<SectionColumn*>();
    const auto* focused = view->focusWidget();
    EXPECT_TRUE(area.viewport()->rect().contains(
        QRect(focused->mapTo(area.viewport(), QPoint()), focused->size())));
}

} // namespace
} // namespace quorvane
