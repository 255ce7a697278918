// SPDX-License-Identifier: MIT
#pragma once

#include "MenuRow.h"

#include <panel/PopoverView.h>
#include <support/HeardAnnouncements.h>
#include <support/HeldPaste.h>
#include <support/WidgetSearch.h>
#include <testing/CallLog.h>
#include <testing/FakeKeyboardLayout.h>
#include <testing/FakePasteboard.h>
#include <testing/FixedClock.h>
#include <testing/FixedCurrentZone.h>
#include <testing/MemoryDefaults.h>

#include <QAbstractButton>
#include <QApplication>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QTest>
#include <gtest/gtest.h>

namespace quorvane {

/// The panel's content in a world of fakes, at 2024-03-09T22:05:00Z in New York: 5:05 PM.
class PopoverFixture : public testing::Test {
protected:
    VirtualMainQueue queue;
    CallLog log{queue};
    FakePasteboard pasteboard{log, queue};
    FakeKeyboardLayout layout;
    ZoneDatabase zones;
    FixedClock clock{Instant{1710021900}};
    FixedCurrentZone currentZone{*zones.zone(QStringLiteral("America/New_York"))};
    MemoryDefaults defaults;
    DateTimeModel model{
        {clock, defaults, currentZone, zones, UserLocale::named(QStringLiteral("en_US"))}};
    HeldPaste clipboardOwner;
    int inserted = 0;
    int closed = 0;
    int preferences = 0;
    int updateChecks = 0;
    int quits = 0;
    PopoverView view{
        model,
        {pasteboard, layout, zones, queue, clock, currentZone, {}, clipboardOwner.reader()},
        {[this] { ++inserted; },
         [this] { ++preferences; },
         [this] { ++updateChecks; },
         [this] { ++closed; },
         [this] {
             ++quits;
         }}};

    PopoverFixture() {
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

    QLineEdit& field(const QString& name) {
        return find<QLineEdit>(QAccessible::EditableText, name);
    }

    QString preview() { return view.findChild<QPlainTextEdit*>()->toPlainText(); }

    /// What a pop-up shows.
    PressableControl& popUp(const QString& name) {
        return find<PressableControl>(QAccessible::ComboBox, name);
    }

    /// Opens a pop-up and chooses a row of its list.
    void choose(const QString& name, const QString& title) {
        auto& control = popUp(name);
        QTest::mouseClick(&control, Qt::LeftButton);
        auto* row = widgetByRole(*QApplication::activePopupWidget(), QAccessible::ListItem, title);
        ASSERT_NE(row, nullptr) << title.toStdString();
        QTest::mouseClick(row, Qt::LeftButton);
        queue.run();
    }

    /// What the list of a pop-up offers.
    QStringList offered(const QString& name) {
        auto& control = popUp(name);
        QTest::keyClick(&control, Qt::Key_Space);
        QStringList titles;
        for (const auto* row : QApplication::activePopupWidget()->findChildren<MenuRow*>())
            titles.append(row->text());
        QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_Escape);
        return titles;
    }
};

} // namespace quorvane
