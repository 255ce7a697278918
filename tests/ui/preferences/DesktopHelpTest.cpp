// SPDX-License-Identifier: MIT
#include "PreferencesFixture.h"

#include <controls/SectionColumn.h>

#include <QLayout>

namespace quorvane {
namespace {

using namespace Qt::StringLiterals;

const auto allow = u"Allow…"_s;

/// A desktop whose portal asks before a program may type.
class TypingSectionTest : public PreferencesFixture {
protected:
    TypingSectionTest() {
        right.setCanPrompt();
        right.setTyping(TypingRight::NotAsked);
        right.onChanged([this] {
            if (view)
                view->refreshSoon();
        });
        openView();
    }

    ~TypingSectionTest() override {
        right.onChanged([] {});
    }

    void answer(TypingRight answer) {
        right.setTyping(answer);
        queue.run();
    }

    bool offers() {
        const auto* found = widgetByRole(*view, QAccessible::Button, allow);
        return found != nullptr && found->isVisible() && found->isEnabled();
    }

    QRect seen(const QWidget& widget) {
        const auto& area = *view->findChild<SectionColumn*>();
        const QRect place(widget.mapTo(area.viewport(), QPoint()), widget.size());
        return place & area.viewport()->rect();
    }
};

TEST_F(TypingSectionTest, SaysWhereTheRightStandsAsItChanges) {
    struct Row {
        TypingRight right;
        QString words;
        bool offers;
    };

    using enum TypingRight;
    for (const auto& [state, words, offered] :
         {Row{NotAsked, u"Not allowed yet; Insert copies instead"_s, true},
          Row{Asking, u"Waiting for your answer"_s, true},
          Row{Refused, u"Not allowed; Insert copies instead"_s, true},
          Row{Granted, u"Allowed"_s, false},
          Row{Stopped, u"Stopped by your desktop; Insert copies instead"_s, true},
          Row{Unavailable, u"Not available; Insert copies instead"_s, false}}) {
        answer(state);
        EXPECT_TRUE(shows(words)) << words.toStdString();
        EXPECT_EQ(offers(), offered) << words.toStdString();
    }
}

TEST_F(TypingSectionTest, OneSentenceSaysWhatWillBeAskedAndShown) {
    EXPECT_TRUE(
        shows(u"Your desktop will ask you to allow remote interaction, and may show a mark while "
              "Quorvane can type."_s));
    QTest::mouseClick(&button(allow), Qt::LeftButton);
    queue.run();
    EXPECT_EQ(right.typing(), TypingRight::Asking);
    EXPECT_TRUE(shows(u"Waiting for your answer"_s));
}

TEST_F(TypingSectionTest, IsAbsentWhereTheDesktopAsksNobody) {
    FakeAccessibilityRight given(log);
    const auto before = dependencies();
    view.reset();
    view = std::make_unique<PreferencesView>(
        *model,
        PreferencesView::Dependencies{
            before.keyboardLayout,
            before.zones,
            before.mainQueue,
            before.clock,
            before.autostart,
            before.desktopShortcut,
            given,
            before.serviceStates,
            before.shortcutStatus,
            {},
            {}},
        [](HotKeyCombo) {});
    view->show();
    EXPECT_FALSE(shows(u"Insert into Other Apps"_s));
    EXPECT_FALSE(offers());
    view.reset();
}

TEST_F(TypingSectionTest, IsRevealedWithTheFocusOnItsButton) {
    for (int service = 0; service < 6; ++service)
        states.push_back({static_cast<DesktopService>(service), false, u"Does not work here."_s});
    openView();
    view->resize(400, 240);
    view->layout()->activate();
    view->reveal(PreferencesPlace::Typing);
    EXPECT_TRUE(button(allow).hasFocus());
    EXPECT_EQ(seen(button(allow)).size(), button(allow).size());
}

class DesktopSectionTest : public PreferencesFixture {};

TEST_F(DesktopSectionTest, TellsForEachServiceHowItWorks) {
    states = {
        {DesktopService::Shortcut, false, u"GNOME keeps a list of shortcuts."_s},
        {DesktopService::Typing, true, u"Through the desktop portal."_s},
        {DesktopService::Clipboard, true, {}},
        {DesktopService::Tray, false, u"This desktop shows no tray icons."_s}};
    openView();
    EXPECT_TRUE(shows(u"This Desktop"_s));
    for (const auto& text :
         {u"Shortcut"_s,
          u"GNOME keeps a list of shortcuts."_s,
          u"Insert"_s,
          u"Through the desktop portal."_s,
          u"Tray icon"_s,
          u"This desktop shows no tray icons."_s})
        EXPECT_TRUE(shows(text)) << text.toStdString();
    EXPECT_FALSE(shows(u"Clipboard"_s)) << "there is nothing to say";
}

TEST_F(DesktopSectionTest, IsAbsentWhereAllIsWell) {
    EXPECT_FALSE(shows(u"This Desktop"_s));
    states = {{DesktopService::Shortcut, true, u"By kglobalaccel."_s}};
    openView();
    EXPECT_FALSE(shows(u"This Desktop"_s));
}

} // namespace
} // namespace quorvane
