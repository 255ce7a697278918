// SPDX-License-Identifier: MIT
#include "PresentationFixture.h"

#include <entry/TimeField.h>
#include <support/WidgetSearch.h>

#include <QTest>

namespace quorvane {
namespace {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

const RunningApplication editor{42, u"editor"_s};

/// The program is shown at 22:05:00Z, and what it shows later is looked at without letting any
/// queued work run: that is what is painted first.
class FreshDatesTest : public PresentationFixture {
protected:
    void passTime(Seconds span) { clock.set(clock.now() + span); }

    /// The interface's, in either mode.
    [[nodiscard]] static QWidget* shownWindow() { return isShown(panel()) ? panel() : popover(); }

    [[nodiscard]] static QString startTime() {
        return shownWindow()->findChild<TimeField*>()->text();
    }

    [[nodiscard]] static bool showsCaption(const QString& text) {
        const auto* caption = widgetByRole(*panel(), QAccessible::StaticText, text);
        return caption != nullptr && caption->isVisible();
    }
};

TEST_F(FreshDatesTest, EveryShowingFromHiddenBeginsWithThisMoment) {
    for (const auto mode : {PresentationMode::Window, PresentationMode::Popover}) {
        clock.set(Instant{1710021900});
        launchAs(mode);
        EXPECT_EQ(startTime(), u"05:05 PM"_s);
        const std::vector<std::function<void()>> showings{
            [this] { delegate->togglePresentation(); },
            [this] { delegate->surfaceMainUIForReopen(); },
            [this] {
                delegate->performAction(u"toggle"_s);
            }};
        for (const auto& show : showings) {
            delegate->togglePresentation();
            queue.run();
            passTime(1min);
            show();
        }
        EXPECT_EQ(startTime(), u"05:08 PM"_s);
        EXPECT_EQ(delegate->model().endDate(), clock.now() + 1h);
    }
}

TEST_F(FreshDatesTest, DesktopBringsTheWindowWhileTheMomentIsTaken) {
    launchAs(PresentationMode::Window);
    delegate->togglePresentation();
    passTime(1min);
    bool isOnItsWay = false;
    const QObject context; // of a connection that ends with the test
    QObject::connect(&delegate->model(), &DateTimeModel::objectWillChange, &context, [&] {
        isOnItsWay = isShown(panel());
    });
    delegate->togglePresentation();
    EXPECT_TRUE(isOnItsWay);
}

TEST_F(FreshDatesTest, ComingBackFromThePreferencesBeginsWithThatMoment) {
    launchAs(PresentationMode::Window);
    delegate->showPreferences();
    passTime(5min);
    delegate->togglePresentation();
    EXPECT_EQ(startTime(), u"05:10 PM"_s);
}

TEST_F(FreshDatesTest, NothingMovesWhileTheInterfaceIsShown) {
    launchAs(PresentationMode::Window);
    passTime(5min);
    delegate->surfaceMainUIForReopen();
    queue.run();
    EXPECT_EQ(startTime(), u"05:05 PM"_s);
    setMode(PresentationMode::Popover);
    EXPECT_EQ(startTime(), u"05:05 PM"_s);
    delegate->performAction(u"copy"_s);
    EXPECT_EQ(delegate->model().startDate(), Instant{1710021900});
}

TEST_F(FreshDatesTest, AnEnteredDateStays) {
    launchAs(PresentationMode::Window);
    delegate->model().setStartDate(Instant{1710021900} + 1h);
    delegate->togglePresentation();
    passTime(5min);
    delegate->togglePresentation();
    EXPECT_EQ(startTime(), u"06:05 PM"_s);
}

TEST_F(FreshDatesTest, CallsWhileTheInterfaceIsHiddenDeliverThisMoment) {
    launchAs(PresentationMode::Window);
    delegate->model().setFormatPreset(DateFormatPreset::UnixTimestamp);
    delegate->togglePresentation();
    passTime(1min);
    delegate->performAction(u"copy"_s);
    EXPECT_EQ(pasteboard->contents(), plainText(u"1710021960"_s));
    passTime(1min);
    delegate->performAction(u"insert"_s);
    queue.advance(250ms);
    EXPECT_EQ(pasteboard->contents(), plainText(u"1710022020"_s));
}

TEST_F(FreshDatesTest, TheCaptionOfTheLastDeliveryStaysUntilTheUserChangesSomething) {
    launchAs(PresentationMode::Window);
    notifications->hasServer = false;
    workspace->setFront(editor);
    workspace->close(editor);
    delegate->performInsert();
    queue.advance(2s);
    const auto caption =
        u"Copied instead. There was no window to type into. Paste with your usual keys."_s;
    passTime(5min);
    delegate->togglePresentation();
    queue.run();
    EXPECT_EQ(startTime(), u"05:10 PM"_s);
    EXPECT_TRUE(showsCaption(caption));
    delegate->model().setIsRange(true);
    queue.run();
    EXPECT_FALSE(showsCaption(caption));
}

} // namespace
} // namespace quorvane
