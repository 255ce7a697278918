// SPDX-License-Identifier: MIT
#include <controls/Sheet.h>
#include <controls/Theme.h>
#include <picker/TimeZonePickerView.h>
#include <support/HeardAnnouncements.h>
#include <support/HeldPaste.h>
#include <support/WidgetSearch.h>
#include <testing/FixedClock.h>
#include <testing/VirtualMainQueue.h>
#include <time/ZoneDatabase.h>

#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QScrollBar>
#include <QSignalSpy>
#include <QStyledItemDelegate>
#include <QTest>
#include <gtest/gtest.h>

#include <set>

namespace quorvane {
namespace {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

// 2024-01-15T12:00:00Z. The catalogue is an ordered list of 420 zones: the country table's and two.
class TimeZonePickerViewTest : public testing::Test {
protected:
    FixedClock clock{Instant{1705320000}};
    ZoneDatabase zones;
    std::vector<TimeZone> selection{*zones.zone(u"America/New_York"_s)};
    VirtualMainQueue queue;
    HeldPaste clipboardOwner;
    QWidget window;
    TimeZonePickerView* view = new TimeZonePickerView(
        {[this] { return selection; },
         [this](auto zoneList) {
             selection = std::move(zoneList);
         }},
        {u"Europe/Paris"_s, u"Nowhere/Atlantis"_s, u"Asia/Calcutta"_s, u"America/New_York"_s},
        {zones, clock, UserLocale::named(u"en_US"_s), queue, clipboardOwner.reader()});
    QPointer<Sheet> sheet;
    QLineEdit& field = find<QLineEdit>(QAccessible::EditableText, u"Search"_s);
    QListView& list = find<QListView>(QAccessible::List, u"Time Zones"_s);

    TimeZonePickerViewTest() {
        window.setPalette(builtInPalette(ColorScheme::Light));
        window.setFixedSize(500, 488);
        window.show();
        window.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
        sheet = new Sheet(&window, view);
        sheet->open();
    }

    template <typename Widget>
    Widget& find(QAccessible::Role role, const QString& name) {
        auto* widget = qobject_cast<Widget*>(widgetByRole(*view, role, name));
        EXPECT_NE(widget, nullptr) << name.toStdString();
        return *widget;
    }

    [[nodiscard]] QModelIndex row(int number) const { return list.model()->index(number, 0); }

    [[nodiscard]] QString title(int number) const { return row(number).data().toString(); }

    /// By the row's tooltip.
    [[nodiscard]] QString identifier(int number) const {
        return row(number).data(Qt::ToolTipRole).toString();
    }

    [[nodiscard]] int count() const { return list.model()->rowCount(); }

    [[nodiscard]] bool isChecked(int number) const {
        return row(number).data(Qt::CheckStateRole).value<Qt::CheckState>() == Qt::Checked;
    }

    [[nodiscard]] QStringList selected() const {
        QStringList identifiers;
        for (const auto& zone : selection)
            identifiers.append(zone.identifier());
        return identifiers;
    }

    void press(int number) {
        QTest::mouseClick(
            list.viewport(), Qt::LeftButton, {}, list.visualRect(row(number)).center());
    }

    /// The line that is shown in place of an empty list.
    [[nodiscard]] QString nothingFound() const {
        for (const auto* label : view->findChildren<QLabel*>()) {
            if (label->isVisible() && label->text().startsWith(u"No time zone"_s))
                return label->text();
        }
        return {};
    }
};

TEST_F(TimeZonePickerViewTest, OpensWithTheFocusInTheSearchField) {
    EXPECT_EQ(window.focusWidget(), &field);
    EXPECT_EQ(field.placeholderText(), u"Search by name, city, or abbreviation"_s);
}

TEST_F(TimeZonePickerViewTest, PastedTextIsSearchedForWhenItHasCome) {
    QTest::keyClick(&field, Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(count(), 1 + 3 + 1 + 420);
    clipboardOwner.answer(u"Europe/Lisbon"_s);
    ASSERT_EQ(count(), 1);
    EXPECT_EQ(identifier(0), u"Europe/Lisbon"_s);
}

TEST_F(TimeZonePickerViewTest, RowSaysWhyItWasFound) {
    QTest::keyClicks(&field, u"boston"_s);
    ASSERT_EQ(count(), 1);
    EXPECT_EQ(row(0).data(Qt::AccessibleTextRole), u"New York, for Boston"_s);
    EXPECT_EQ(row(0).data(ZoneListModel::ReasonRole), u"for Boston"_s);
    field.selectAll();
    QTest::keyClicks(&field, u"calcutta"_s);
    ASSERT_EQ(count(), 1);
    EXPECT_EQ(row(0).data(Qt::AccessibleTextRole), u"Kolkata, for Calcutta"_s);
    field.selectAll();
    QTest::keyClicks(&field, u"tokyo"_s);
    EXPECT_EQ(row(0).data(Qt::AccessibleTextRole), u"Tokyo"_s);
    EXPECT_EQ(row(0).data(ZoneListModel::ReasonRole), QString());
}

TEST_F(TimeZonePickerViewTest, ShowsFavoritesThatAreZonesBeforeTheWholeCatalogue) {
    EXPECT_EQ(title(0), u"Favorites"_s);
    EXPECT_EQ(identifier(1), u"Europe/Paris"_s);
    EXPECT_EQ(identifier(2), u"Asia/Kolkata"_s);
    EXPECT_EQ(identifier(3), u"America/New_York"_s);
    EXPECT_EQ(title(4), u"All Time Zones"_s);
    EXPECT_EQ(identifier(5), u"Etc/GMT+12"_s);
    EXPECT_EQ(count(), 1 + 3 + 1 + 420);
}

TEST_F(TimeZonePickerViewTest, CurrentRowIsTheFirstZone) {
    EXPECT_EQ(list.currentIndex(), row(1));
    EXPECT_EQ(list.verticalScrollBar()->value(), 0);
}

TEST_F(TimeZonePickerViewTest, HeadsCannotBeChosen) {
    press(0);
    EXPECT_EQ(selected(), QStringList{u"America/New_York"_s});
    EXPECT_FALSE(row(0).flags().testFlag(Qt::ItemIsSelectable));
}

TEST_F(TimeZonePickerViewTest, SearchShowsOnlyWhatMatchesInTheCataloguesOrder) {
    QTest::keyClicks(&field, u"washington"_s);
    ASSERT_EQ(count(), 1);
    EXPECT_EQ(identifier(0), u"America/New_York"_s);
    EXPECT_EQ(list.currentIndex(), row(0));
    field.selectAll();
    QTest::keyClicks(&field, u"istanbul"_s);
    ASSERT_EQ(count(), 1);
    field.selectAll();
    QTest::keyClicks(&field, u"australia/"_s);
    ASSERT_GT(count(), 5);
    EXPECT_EQ(identifier(0), u"Australia/Perth"_s);
    EXPECT_EQ(identifier(1), u"Australia/Eucla"_s);
    field.clear();
    EXPECT_EQ(title(0), u"Favorites"_s);
}

TEST_F(TimeZonePickerViewTest, FirstQueryIsPreparedOnceTheListIsPainted) {
    EXPECT_TRUE(queue.isIdle());
    static_cast<void>(view->grab());
    EXPECT_FALSE(queue.isIdle());
    queue.run();
    static_cast<void>(view->grab());
    EXPECT_TRUE(queue.isIdle());
}

TEST_F(TimeZonePickerViewTest, BlanksAloneAreNoSearch) {
    QTest::keyClicks(&field, u"  "_s);
    EXPECT_EQ(count(), 425);
    EXPECT_EQ(title(0), u"Favorites"_s);
}

TEST_F(TimeZonePickerViewTest, ArrowsAndPagesMoveTheCurrentRowFromTheSearchField) {
    QTest::keyClick(&field, Qt::Key_Down);
    EXPECT_EQ(list.currentIndex(), row(2));
    QTest::keyClick(&field, Qt::Key_Down);
    QTest::keyClick(&field, Qt::Key_Down);
    EXPECT_EQ(list.currentIndex(), row(5)); // over the head
    QTest::keyClick(&field, Qt::Key_Up);
    EXPECT_EQ(list.currentIndex(), row(3));
    QTest::keyClick(&field, Qt::Key_PageDown);
    const int paged = list.currentIndex().row();
    EXPECT_GT(paged, 8);
    EXPECT_TRUE(list.viewport()->rect().contains(list.visualRect(row(paged))));
    QTest::keyClick(&field, Qt::Key_PageUp);
    EXPECT_LT(list.currentIndex().row(), paged);
    EXPECT_EQ(window.focusWidget(), &field);
}

TEST_F(TimeZonePickerViewTest, ReturnTogglesTheCurrentRow) {
    QTest::keyClick(&field, Qt::Key_Return);
    EXPECT_EQ(selected(), (QStringList{u"America/New_York"_s, u"Europe/Paris"_s}));
    EXPECT_TRUE(isChecked(1));
    QTest::keyClick(&field, Qt::Key_Enter, Qt::KeypadModifier);
    EXPECT_EQ(selected(), QStringList{u"America/New_York"_s});
    EXPECT_FALSE(isChecked(1));
}

TEST_F(TimeZonePickerViewTest, LastSelectedZoneStays) {
    press(3);
    EXPECT_EQ(selected(), QStringList{u"America/New_York"_s});
    EXPECT_TRUE(isChecked(3));
}

TEST_F(TimeZonePickerViewTest, PressTogglesAndKeepsTheListInItsPlace) {
    list.verticalScrollBar()->setValue(3000);
    const auto index = list.indexAt({200, 200});
    ASSERT_TRUE(index.isValid());
    const auto place = list.visualRect(index);
    press(index.row());
    ASSERT_EQ(selection.size(), 2U);
    EXPECT_EQ(selection[1].identifier(), identifier(index.row()));
    EXPECT_TRUE(isChecked(index.row()));
    EXPECT_EQ(list.verticalScrollBar()->value(), 3000);
    EXPECT_EQ(list.visualRect(index), place);
    EXPECT_EQ(count(), 425);
}

TEST_F(TimeZonePickerViewTest, PressThatIsReleasedElsewhereChoosesNothing) {
    QTest::mousePress(list.viewport(), Qt::LeftButton, {}, list.visualRect(row(1)).center());
    QTest::mouseRelease(list.viewport(), Qt::LeftButton, {}, list.visualRect(row(2)).center());
    EXPECT_EQ(selection.size(), 1U);
}

TEST_F(TimeZonePickerViewTest, TypingInTheListSearches) {
    list.setFocus(Qt::TabFocusReason);
    QTest::keyClick(&list, Qt::Key_T);
    EXPECT_EQ(window.focusWidget(), &field);
    QTest::keyClicks(window.focusWidget(), u"okyo"_s);
    EXPECT_EQ(field.text(), u"tokyo"_s);
    ASSERT_EQ(count(), 1);
    EXPECT_EQ(identifier(0), u"Asia/Tokyo"_s);
}

TEST_F(TimeZonePickerViewTest, KeysInTheListMoveAndToggle) {
    list.setFocus(Qt::TabFocusReason);
    QTest::keyClick(&list, Qt::Key_Down);
    EXPECT_EQ(list.currentIndex(), row(2));
    QTest::keyClick(&list, Qt::Key_Space);
    QTest::keyClick(&list, Qt::Key_Up);
    QTest::keyClick(&list, Qt::Key_Return);
    EXPECT_EQ(
        selected(), (QStringList{u"America/New_York"_s, u"Asia/Kolkata"_s, u"Europe/Paris"_s}));
    EXPECT_EQ(field.text(), QString());
}

TEST_F(TimeZonePickerViewTest, SearchThatFindsNothingSaysSo) {
    EXPECT_EQ(nothingFound(), QString());
    QTest::keyClicks(&field, u" atlantis "_s);
    EXPECT_EQ(count(), 0);
    EXPECT_EQ(nothingFound(), u"No time zone matches “atlantis”"_s);
    QTest::keyClick(&field, Qt::Key_Return);
    EXPECT_EQ(selection.size(), 1U);
    field.clear();
    EXPECT_EQ(nothingFound(), QString());
}

TEST_F(TimeZonePickerViewTest, EscapeClosesItFromTheFieldAndFromTheList) {
    const QSignalSpy closed(sheet, &Sheet::closed);
    list.setFocus(Qt::TabFocusReason);
    QTest::keyClick(&list, Qt::Key_Escape);
    EXPECT_EQ(closed.count(), 1);
}

TEST_F(TimeZonePickerViewTest, EscapeClosesItWhileOneSearches) {
    const QSignalSpy closed(sheet, &Sheet::closed);
    QTest::keyClicks(&field, u"york"_s);
    QTest::keyClick(&field, Qt::Key_Escape);
    EXPECT_EQ(closed.count(), 1);
}

TEST_F(TimeZonePickerViewTest, DoneFinishes) {
    const QSignalSpy done(view, &TimeZonePickerView::done);
    auto& button = find<QWidget>(QAccessible::Button, u"Done"_s);
    QTest::mouseClick(&button, Qt::LeftButton);
    QTest::keyClick(&button, Qt::Key_Return);
    EXPECT_EQ(done.count(), 2);
    EXPECT_EQ(selection.size(), 1U);
}

TEST_F(TimeZonePickerViewTest, TabGoesFromTheFieldToTheListToDone) {
    QTest::keyClick(&field, Qt::Key_Tab);
    EXPECT_EQ(window.focusWidget(), &list);
    QTest::keyClick(&list, Qt::Key_Tab);
    EXPECT_EQ(window.focusWidget(), &find<QWidget>(QAccessible::Button, u"Done"_s));
}

TEST_F(TimeZonePickerViewTest, RowsAreNamedDescribedAndCheckable) {
    EXPECT_EQ(title(2), u"Kolkata"_s);
    EXPECT_EQ(row(2).data(Qt::AccessibleDescriptionRole), u"Asia/Kolkata"_s);
    auto* interface = QAccessible::queryAccessibleInterface(&list);
    ASSERT_EQ(interface->childCount(), 425);
    const auto* chosen = interface->child(3);
    EXPECT_EQ(chosen->text(QAccessible::Name), u"New York"_s);
    EXPECT_EQ(chosen->text(QAccessible::Description), u"America/New_York"_s);
    EXPECT_TRUE(chosen->state().checkable);
    EXPECT_TRUE(chosen->state().checked);
    EXPECT_FALSE(interface->child(1)->state().checked);
}

TEST_F(TimeZonePickerViewTest, OnlyRowsInSightArePainted) {
    struct Counter final : QStyledItemDelegate {
        const QAbstractItemDelegate* inner;
        mutable std::set<int> painted;

        explicit Counter(QListView& list)
            : QStyledItemDelegate(&list),
              inner(list.itemDelegate()) {}

        void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index)
            const override {
            painted.insert(index.row());
            inner->paint(painter, option, index);
        }

        [[nodiscard]] QSize
        sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override {
            return inner->sizeHint(option, index);
        }
    };

    auto* counter = new Counter(list);
    list.setItemDelegate(counter);
    EXPECT_FALSE(window.grab().isNull());
    EXPECT_GT(counter->painted.size(), 8U);
    EXPECT_LT(counter->painted.size(), 40U);
    EXPECT_EQ(*counter->painted.begin(), 0);
}

TEST_F(TimeZonePickerViewTest, ListBeginsFourBelowTheLine) {
    EXPECT_EQ(list.visualRect(row(0)).height(), 28);
    EXPECT_EQ(list.visualRect(row(1)).height(), 32);
    EXPECT_EQ(list.viewport()->mapTo(&list, QPoint()).y(), 4);
    EXPECT_EQ(field.height(), 32);
    EXPECT_EQ(field.mapTo(view, QPoint()), QPoint(16, 44));
}

TEST_F(TimeZonePickerViewTest, WhatASearchFindsIsAnnouncedWhenTheTypingPauses) {
    HeardAnnouncements heard(window);
    QTest::keyClicks(&field, u"berl"_s);
    queue.advance(900ms);
    QTest::keyClicks(&field, u"i"_s);
    EXPECT_EQ(heard.take(), QStringList());
    queue.advance(1s);
    EXPECT_EQ(heard.take(), QStringList{u"1 time zone: Berlin"_s});
    QTest::keyClicks(&field, u"zz"_s);
    queue.advance(1s);
    EXPECT_EQ(heard.take(), QStringList{u"No time zone matches “berlizz”"_s});
    field.setText(u"ber"_s);
    queue.advance(1s);
    EXPECT_EQ(heard.take(), QStringList{u"%1 time zones, first %2"_s.arg(count()).arg(title(0))});
    field.clear();
    queue.advance(1s);
    EXPECT_EQ(heard.take(), QStringList());
}

TEST_F(TimeZonePickerViewTest, WhatBecameOfAZoneIsAnnounced) {
    HeardAnnouncements heard(window);
    field.setText(u"Berlin"_s);
    QTest::keyClick(&field, Qt::Key_Return);
    EXPECT_EQ(heard.take(), QStringList{u"Berlin added"_s});
    QTest::keyClick(&field, Qt::Key_Return);
    EXPECT_EQ(heard.take(), QStringList{u"Berlin removed"_s});
    field.setText(u"New York"_s);
    QTest::keyClick(&field, Qt::Key_Return);
    EXPECT_EQ(heard.take(), QStringList{u"New York stays, because it is the only time zone"_s});
    EXPECT_EQ(selected(), QStringList{u"America/New_York"_s});
}

} // namespace
} // namespace quorvane
