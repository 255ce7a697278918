// SPDX-License-Identifier: MIT
#include <fakes/CallLog.h>
#include <fakes/FakeKeyboardLayout.h>
#include <fakes/FakePasteboard.h>
#include <fakes/FixedClock.h>
#include <fakes/FixedCurrentZone.h>
#include <fakes/MemoryDefaults.h>
#include <support/WidgetSearch.h>
#include <ui/PopoverView.h>

#include <QAbstractButton>
#include <QComboBox>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QTest>
#include <gtest/gtest.h>

namespace quorvane {
namespace {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

// 2024-03-09T22:05:00Z, in New York 5:05 PM.
class PopoverViewTest : public testing::Test {
protected:
    VirtualMainQueue queue;
    CallLog log{queue};
    FakePasteboard pasteboard{log, queue};
    FakeKeyboardLayout layout;
    ZoneDatabase zones;
    FixedClock clock{Instant{1710021900}};
    FixedCurrentZone currentZone{*zones.zone(u"America/New_York"_s)};
    MemoryDefaults defaults;
    DateTimeModel model{{clock, defaults, currentZone, zones, UserLocale::named(u"en_US"_s)}};
    int inserted = 0;
    int closed = 0;
    int preferences = 0;
    int quits = 0;
    PopoverView view{
        model,
        {pasteboard, layout, zones, queue},
        {[this] { ++inserted; },
         [this] { ++preferences; },
         [this] { ++closed; },
         [this] {
             ++quits;
         }}};

    PopoverViewTest() {
        view.show();
        view.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&view));
    }

    template <typename Widget>
    Widget& find(QAccessible::Role role, const QString& name) {
        auto* widget = qobject_cast<Widget*>(widgetByRole(view, role, name));
        EXPECT_NE(widget, nullptr) << name.toStdString();
        return *widget;
    }

    QAbstractButton& button(const QString& name) {
        return find<QAbstractButton>(QAccessible::Button, name);
    }

    QAbstractButton& box(const QString& name) {
        return find<QAbstractButton>(QAccessible::CheckBox, name);
    }

    QComboBox& choice(const QString& name) { return find<QComboBox>(QAccessible::ComboBox, name); }

    QLineEdit& field(const QString& name) {
        return find<QLineEdit>(QAccessible::EditableText, name);
    }

    QString preview() { return view.findChild<QPlainTextEdit*>()->toPlainText(); }

    void choose(QComboBox& combo, const QString& text) {
        combo.setFocus();
        combo.setCurrentText(text);
        Q_EMIT combo.activated(combo.currentIndex());
        queue.run();
    }
};

TEST_F(PopoverViewTest, ShowsTheOutputFromTheStart) {
    EXPECT_EQ(preview(), u"March 9, 2024 at 5:05 PM EST"_s);
}

TEST_F(PopoverViewTest, BurstOfAssignmentsLeadsToOneRefresh) {
    model.setFormatPreset(DateFormatPreset::UnixTimestamp);
    model.setStartDate({1});
    EXPECT_EQ(preview(), u"March 9, 2024 at 5:05 PM EST"_s);
    queue.run();
    EXPECT_EQ(preview(), u"1"_s);
    EXPECT_TRUE(queue.isIdle());
}

TEST_F(PopoverViewTest, BoxesSetTheFlagsAndOneStaysOn) {
    box(u"Time"_s).click();
    queue.run();
    EXPECT_FALSE(model.includeTime());
    EXPECT_EQ(preview(), u"March 9, 2024"_s);
    EXPECT_FALSE(box(u"Date"_s).isEnabled());
    box(u"Time"_s).click();
    queue.run();
    EXPECT_TRUE(box(u"Date"_s).isEnabled());
}

TEST_F(PopoverViewTest, PresetThatIsNoLongerOfferedGivesWayToTheFirst) {
    choose(choice(u"Format"_s), u"Medium"_s);
    EXPECT_EQ(model.formatPreset(), DateFormatPreset::MediumForm);
    box(u"Date"_s).click(); // the time alone reads the same as Long and Medium
    queue.run();
    EXPECT_EQ(model.formatPreset(), DateFormatPreset::LongForm);
    EXPECT_EQ(choice(u"Format"_s).currentText(), u"Long"_s);
    EXPECT_EQ(choice(u"Format"_s).findText(u"Medium"_s), -1);
}

TEST_F(PopoverViewTest, ZonesAreTypedAndLaidOut) {
    auto& zoneField = field(u"Time Zones"_s);
    EXPECT_EQ(zoneField.text(), u"America/New_York"_s);
    EXPECT_FALSE(choice(u"Layout"_s).isVisible());
    zoneField.selectAll();
    QTest::keyClicks(&zoneField, u"UTC, America/New_York, Nowhere"_s);
    QTest::keyClick(&zoneField, Qt::Key_Return);
    queue.run();
    EXPECT_EQ(preview(), u"March 9, 2024 at 5:05 PM EST / March 9, 2024 at 10:05 PM UTC"_s);
    choose(choice(u"Layout"_s), u"Lines"_s);
    EXPECT_EQ(preview(), u"March 9, 2024 at 5:05 PM EST\nMarch 9, 2024 at 10:05 PM UTC"_s);
}

TEST_F(PopoverViewTest, CustomPatternShowsOnlyForTheCustomPreset) {
    auto& pattern = field(u"Custom format"_s);
    EXPECT_FALSE(pattern.isVisible());
    choose(choice(u"Format"_s), u"Custom…"_s);
    EXPECT_TRUE(pattern.isVisible());
    pattern.selectAll();
    QTest::keyClicks(&pattern, u"yyyy"_s);
    queue.run();
    EXPECT_EQ(preview(), u"2024"_s);
}

TEST_F(PopoverViewTest, CopyPutsTheOutputAndConfirmsItForAWhile) {
    auto& copy = button(u"Copy"_s);
    copy.click();
    EXPECT_EQ(pasteboard.contents(), plainText(u"March 9, 2024 at 5:05 PM EST"_s));
    EXPECT_EQ(copy.text(), u"Copied"_s);
    queue.advance(1499ms);
    EXPECT_EQ(copy.text(), u"Copied"_s);
    queue.advance(1ms);
    EXPECT_EQ(copy.text(), u"Copy"_s);
    EXPECT_TRUE(view.isVisible());
}

TEST_F(PopoverViewTest, CopyTwiceIsConfirmedUntilTheFirstOneEnds) {
    auto& copy = button(u"Copy"_s);
    copy.click();
    queue.advance(1s);
    copy.click();
    queue.advance(499ms);
    EXPECT_EQ(copy.text(), u"Copied"_s);
    queue.advance(1ms);
    EXPECT_EQ(copy.text(), u"Copy"_s);
    queue.advance(1s);
    EXPECT_EQ(copy.text(), u"Copy"_s);
}

TEST_F(PopoverViewTest, KeysReachTheActions) {
    QTest::keyClick(&view, Qt::Key_Return, Qt::ControlModifier);
    EXPECT_EQ(inserted, 1);
    QTest::keyClick(&view, Qt::Key_Comma, Qt::ControlModifier);
    EXPECT_EQ(preferences, 1);
    QTest::keyClick(&view, Qt::Key_Q, Qt::ControlModifier);
    EXPECT_EQ(quits, 1);
    QTest::keyClick(&view, Qt::Key_Escape);
    EXPECT_EQ(closed, 1);
}

TEST_F(PopoverViewTest, ButtonsReachTheActions) {
    button(u"Insert"_s).click();
    EXPECT_EQ(inserted, 1);
    button(u"Close"_s).click();
    EXPECT_EQ(closed, 1);
}

TEST_F(PopoverViewTest, WithoutAZoneForTheTimeNothingCanBeDelivered) {
    model.setSelectedTimeZones({});
    queue.run();
    EXPECT_EQ(preview(), QString());
    EXPECT_FALSE(button(u"Copy"_s).isEnabled());
    EXPECT_FALSE(button(u"Insert"_s).isEnabled());
    QTest::keyClick(&view, Qt::Key_Return, Qt::ControlModifier);
    EXPECT_EQ(inserted, 0);
    model.setSelectedTimeZones({*zones.zone(u"UTC"_s)});
    queue.run();
    EXPECT_TRUE(button(u"Insert"_s).isEnabled());
}

} // namespace
} // namespace quorvane
