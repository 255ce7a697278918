// SPDX-License-Identifier: MIT
#pragma once

#include <controls/FocusRing.h>
#include <controls/Theme.h>
#include <preferences/PreferencesMetrics.h>
#include <preferences/PreferencesView.h>
#include <support/HeldPaste.h>
#include <support/PhysicalKeyboard.h>
#include <support/WidgetSearch.h>
#include <testing/CallLog.h>
#include <testing/FakeAccessibilityRight.h>
#include <testing/FakeAutostart.h>
#include <testing/FakeDesktopShortcut.h>
#include <testing/FakeKeyboardLayout.h>
#include <testing/FixedClock.h>
#include <testing/FixedCurrentZone.h>
#include <testing/MemoryDefaults.h>
#include <testing/VirtualMainQueue.h>

#include <QAbstractButton>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QScrollBar>
#include <QTest>
#include <gtest/gtest.h>

#include <memory>

namespace quorvane {

/// The preferences of a user in New York, at 2024-01-15T12:00:00Z, in their window.
class PreferencesFixture : public testing::Test {
protected:
    VirtualMainQueue queue;
    CallLog log{queue};
    FakeAutostart autostart{log};
    FakeKeyboardLayout layout;
    ZoneDatabase zones;
    FixedClock clock{Instant{1705320000}};
    FixedCurrentZone currentZone{*zones.zone(QStringLiteral("America/New_York"))};
    MemoryDefaults defaults;
    ShortcutRecorder::Activity activity = ShortcutRecorder::Activity::Active;
    QString holder;
    std::vector<HotKeyCombo> changes;
    HeldPaste clipboardOwner;
    FakeDesktopShortcut shortcuts{log};
    FakeAccessibilityRight right{log};
    std::vector<ServiceState> states;
    BindingSyntax syntax = BindingSyntax::Command;
    QStringList copied;
    bool canCopy = true;
    std::unique_ptr<DateTimeModel> model;
    std::unique_ptr<PreferencesView> view;
    std::unique_ptr<PhysicalKeyboard> keyboard;

    PreferencesFixture() {
        layout.setKey(2, u"d");
        layout.setKey(40, u"k");
        defaults.setStringArray(
            setting::favoriteZones.key,
            {QStringLiteral("Asia/Tokyo"),
             QStringLiteral("Nowhere/Atlantis"),
             QStringLiteral("Europe/Paris"),
             QStringLiteral("America/New_York")});
        model = std::make_unique<DateTimeModel>(DateTimeModel::Dependencies{
            clock, defaults, currentZone, zones, UserLocale::named(QStringLiteral("en_US"))});
        openView();
    }

    PreferencesView::Dependencies dependencies() {
        return {
            layout,
            zones,
            queue,
            clock,
            autostart,
            shortcuts,
            right,
            states,
            [this] {
                return ShortcutRecorder::Status{activity, holder};
            },
            [this] { right.prompt(); },
            [this](const QString& text) {
                if (canCopy)
                    copied.append(text);
                return canCopy;
            },
            clipboardOwner.reader(),
            {},
            syntax};
    }

    void openView() {
        view = std::make_unique<PreferencesView>(*model, dependencies(), [this](HotKeyCombo combo) {
            changes.push_back(combo);
            EXPECT_EQ(view->editingCombo(), combo);
            model->setHotKey(combo);
        });
        auto font = view->font();
        font.setPixelSize(13);
        view->setFont(font);
        view->setPalette(builtInPalette(ColorScheme::Light));
        view->resize(preferencesmetrics::size);
        new FocusRing(view.get());
        keyboard = std::make_unique<PhysicalKeyboard>(*view);
        view->show();
        view->activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(view.get()));
    }

    template <typename Widget>
    Widget& find(QAccessible::Role role, const QString& name) {
        auto* widget = qobject_cast<Widget*>(widgetByRole(*view, role, name));
        EXPECT_NE(widget, nullptr) << name.toStdString();
        return *widget;
    }

    QAbstractButton& box(const QString& name) {
        return find<QAbstractButton>(QAccessible::CheckBox, name);
    }

    QAbstractButton& button(const QString& name) {
        return find<QAbstractButton>(QAccessible::Button, name);
    }

    QLineEdit& field() {
        return find<QLineEdit>(QAccessible::EditableText, QStringLiteral("Search"));
    }

    QListView& list() {
        return find<QListView>(QAccessible::List, QStringLiteral("Favorite Time Zones"));
    }

    QAbstractButton& starredOnly() { return box(QStringLiteral("Show starred only")); }

    QLabel* label(const QString& text) {
        return qobject_cast<QLabel*>(widgetByRole(*view, QAccessible::StaticText, text));
    }

    bool shows(const QString& text) {
        const auto* found = label(text);
        return found != nullptr && found->isVisible();
    }

    int count() { return list().model()->rowCount(); }

    QModelIndex row(int number) { return list().model()->index(number, 0); }

    int rowOf(const QString& city) {
        for (int number = 0; number < count(); ++number) {
            if (row(number).data().toString() == city)
                return number;
        }
        return -1;
    }

    QStringList cities() {
        QStringList names;
        for (int number = 0; number < count(); ++number)
            names.append(row(number).data().toString());
        return names;
    }

    bool isStarred(const QString& city) {
        return row(rowOf(city)).data(Qt::CheckStateRole).value<Qt::CheckState>() == Qt::Checked;
    }

    void pressRow(const QString& city) {
        const auto index = row(rowOf(city));
        list().scrollTo(index);
        QTest::mouseClick(list().viewport(), Qt::LeftButton, {}, list().visualRect(index).center());
    }

    const QStringList& favorites() { return model->favoriteTimeZoneIdentifiers(); }
};

} // namespace quorvane
