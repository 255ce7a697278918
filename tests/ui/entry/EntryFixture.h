// SPDX-License-Identifier: MIT
#pragma once

#include <controls/Binding.h>
#include <entry/EntryDependencies.h>
#include <support/HeldPaste.h>
#include <support/WidgetSearch.h>
#include <testing/FixedClock.h>
#include <testing/FixedCurrentZone.h>
#include <time/ZoneDatabase.h>

#include <QAbstractButton>
#include <QApplication>
#include <QLineEdit>
#include <QTest>
#include <QWindow>
#include <gtest/gtest.h>

#include <vector>

namespace quorvane {

/// A date in New York, a window to edit it in, and a user's hands.
class EntryFixture : public testing::Test {
protected:
    ZoneDatabase zones;
    FixedClock clock{Instant{1795197600}}; // 2026-11-20T18:00:00Z, a Friday
    FixedCurrentZone currentZone{*zones.zone(QStringLiteral("America/New_York"))};
    Instant date{1710021900}; // 2024-03-09T22:05:00Z, 17:05 in New York, a Saturday
    std::vector<Instant> writes;
    HeldPaste clipboardOwner;
    QWidget window;

    EntryFixture() { window.resize(600, 400); }

    Binding<Instant> binding() {
        return {
            [this] { return date; },
            [this](Instant written) {
                date = written;
                writes.push_back(written);
            }};
    }

    EntryDependencies dependencies(const char* locale = "en_US") {
        return {
            clock,
            currentZone,
            UserLocale::named(QString::fromUtf8(locale)),
            {},
            clipboardOwner.reader()};
    }

    void showWindow() {
        window.show();
        window.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
    }

    /// The keyboard's keys, on their way from the window system.
    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
        auto* popup = QApplication::activePopupWidget();
        QTest::keyClick(
            popup != nullptr ? popup->windowHandle() : window.windowHandle(), key, modifiers);
    }

    void paste(const QString& text) {
        press(Qt::Key_A, Qt::ControlModifier);
        press(Qt::Key_V, Qt::ControlModifier);
        clipboardOwner.answer(text);
    }

    static void clickOn(QWidget& widget) { QTest::mouseClick(&widget, Qt::LeftButton); }

    template <typename Widget>
    Widget& find(QAccessible::Role role, const QString& name) {
        auto* widget = qobject_cast<Widget*>(widgetByRole(window, role, name));
        EXPECT_NE(widget, nullptr) << name.toStdString();
        return *widget;
    }

    QAbstractButton& button(const QString& name) {
        return find<QAbstractButton>(QAccessible::Button, name);
    }

    QLineEdit& field(const QString& name) {
        return find<QLineEdit>(QAccessible::EditableText, name);
    }

    static QAccessible::State stateOf(QWidget& widget) {
        return QAccessible::queryAccessibleInterface(&widget)->state();
    }
};

} // namespace quorvane
