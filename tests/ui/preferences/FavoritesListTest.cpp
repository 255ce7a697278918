// SPDX-License-Identifier: MIT
#include "PreferencesFixture.h"

#include <timezones/TimeZoneCatalogue.h>
#include <timezones/ZoneTexts.h>

namespace quorvane {
namespace {

using namespace Qt::StringLiterals;

// The catalogue has 420 zones: the country table's and two.
constexpr int everything = 420;

class FavoritesListTest : public PreferencesFixture {
protected:
    const TimeZoneCatalogue catalogue{zones, clock.now()};

    void search(const QString& text) {
        field().selectAll();
        QTest::keyClicks(&field(), text);
    }
};

TEST_F(FavoritesListTest, ShowsTheCatalogueFromWestToEast) {
    QStringList catalogueCities;
    for (const auto& entry : catalogue.entries())
        catalogueCities.append(placeName(entry.zone.identifier()));
    EXPECT_EQ(count(), everything);
    EXPECT_EQ(cities().first(), u"UTC−12"_s);
    EXPECT_EQ(cities().last(), u"Kiritimati"_s);
    EXPECT_EQ(cities(), catalogueCities);
}

TEST_F(FavoritesListTest, OldNameOfAZoneStarsItAndIsRemovedWithIt) {
    model->setFavoriteTimeZoneIdentifiers({u"Asia/Calcutta"_s, u"US/Eastern"_s, u"Asia/Tokyo"_s});
    queue.run();
    EXPECT_TRUE(isStarred(u"New York"_s));
    starredOnly().click();
    EXPECT_EQ(cities(), (QStringList{u"New York"_s, u"Kolkata"_s, u"Tokyo"_s}));
    pressRow(u"New York"_s);
    queue.run();
    EXPECT_EQ(favorites(), (QStringList{u"Asia/Calcutta"_s, u"Asia/Tokyo"_s}));
    EXPECT_EQ(cities(), (QStringList{u"Kolkata"_s, u"Tokyo"_s}));
}

TEST_F(FavoritesListTest, FavoritesAreChecked) {
    EXPECT_TRUE(isStarred(u"Tokyo"_s));
    EXPECT_TRUE(isStarred(u"New York"_s));
    EXPECT_FALSE(isStarred(u"London"_s));
}

TEST_F(FavoritesListTest, StarringAppendsAndUnstarringRemovesThatOneAlone) {
    pressRow(u"London"_s);
    queue.run();
    EXPECT_EQ(
        favorites(),
        (QStringList{
            u"Asia/Tokyo"_s,
            u"Nowhere/Atlantis"_s,
            u"Europe/Paris"_s,
            u"America/New_York"_s,
            u"Europe/London"_s}));
    EXPECT_EQ(defaults.stringArrayForKey(setting::favoriteZones.key), favorites());
    EXPECT_TRUE(isStarred(u"London"_s));
    pressRow(u"Paris"_s);
    queue.run();
    EXPECT_EQ(
        favorites(),
        (QStringList{
            u"Asia/Tokyo"_s, u"Nowhere/Atlantis"_s, u"America/New_York"_s, u"Europe/London"_s}));
    EXPECT_FALSE(isStarred(u"Paris"_s));
}

TEST_F(FavoritesListTest, OfDoubleEntriesTheFirstIsRemoved) {
    model->setFavoriteTimeZoneIdentifiers({u"Europe/Paris"_s, u"Asia/Tokyo"_s, u"Europe/Paris"_s});
    pressRow(u"Paris"_s);
    EXPECT_EQ(favorites(), (QStringList{u"Asia/Tokyo"_s, u"Europe/Paris"_s}));
}

TEST_F(FavoritesListTest, PressKeepsTheListInItsPlace) {
    list().verticalScrollBar()->setValue(3000);
    const auto index = list().indexAt({200, 100});
    const auto place = list().visualRect(index);
    QTest::mouseClick(list().viewport(), Qt::LeftButton, {}, place.center());
    queue.run();
    EXPECT_EQ(favorites().size(), 5);
    EXPECT_EQ(list().visualRect(index), place);
}

TEST_F(FavoritesListTest, SearchFindsByAliasIdentifierAndAbbreviation) {
    search(u" WASHINGTON "_s);
    EXPECT_EQ(cities(), QStringList{u"New York"_s});
    EXPECT_EQ(field().text(), u" WASHINGTON "_s);
    search(u"los angeles"_s);
    EXPECT_EQ(cities(), QStringList{u"Los Angeles"_s});
    search(u"new_york"_s);
    EXPECT_TRUE(cities().isEmpty());
    search(u"pst"_s);
    EXPECT_TRUE(cities().contains(u"Los Angeles"_s));
    search(u"la"_s);
    for (const auto& city : {u"New York"_s, u"Los Angeles"_s, u"Chicago"_s, u"Rome"_s})
        EXPECT_TRUE(cities().contains(city)) << city.toStdString();
    EXPECT_LT(cities().indexOf(u"Los Angeles"_s), cities().indexOf(u"Chicago"_s));
}

TEST_F(FavoritesListTest, PastedTextIsSearchedForWhenItHasCome) {
    const int all = count();
    QTest::keyClick(&field(), Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(count(), all);
    clipboardOwner.answer(u"Europe/Lisbon"_s);
    EXPECT_EQ(count(), 1);
}

TEST_F(FavoritesListTest, BlanksAloneAreNoSearch) {
    search(u" \t "_s);
    EXPECT_EQ(count(), everything);
}

TEST_F(FavoritesListTest, ClearShowsWhileThereIsTextAndEmptiesIt) {
    EXPECT_FALSE(button(u"Clear"_s).isVisible());
    search(u"york"_s);
    ASSERT_TRUE(button(u"Clear"_s).isVisible());
    QTest::mouseClick(&button(u"Clear"_s), Qt::LeftButton);
    EXPECT_EQ(field().text(), QString());
    EXPECT_EQ(count(), everything);
    EXPECT_FALSE(button(u"Clear"_s).isVisible());
}

TEST_F(FavoritesListTest, StarredOnlyShowsTheFavoritesThatAreZonesInTheCataloguesOrder) {
    QTest::mouseClick(&starredOnly(), Qt::LeftButton);
    EXPECT_TRUE(starredOnly().isChecked());
    EXPECT_EQ(cities(), (QStringList{u"New York"_s, u"Paris"_s, u"Tokyo"_s}));
    search(u"o"_s);
    EXPECT_EQ(cities(), (QStringList{u"New York"_s, u"Paris"_s, u"Tokyo"_s})); // europe/
    search(u"tok"_s);
    EXPECT_EQ(cities(), QStringList{u"Tokyo"_s});
    search(u"london"_s);
    EXPECT_TRUE(cities().isEmpty());
}

TEST_F(FavoritesListTest, StarNextToTheBoxTakesThePressToo) {
    auto* filter = starredOnly().parentWidget();
    EXPECT_EQ(filter->toolTip(), u"Show starred only"_s);
    QTest::mouseClick(filter, Qt::LeftButton, {}, {30, 12});
    EXPECT_TRUE(starredOnly().isChecked());
}

TEST_F(FavoritesListTest, WithoutFavoritesStarredOnlyIsEmptyAndSaysWhy) {
    model->setFavoriteTimeZoneIdentifiers({});
    starredOnly().click();
    EXPECT_EQ(count(), 0);
    EXPECT_TRUE(shows(u"No favorite time zones"_s));
    search(u"york"_s);
    EXPECT_TRUE(shows(u"No time zone matches “york”"_s));
    starredOnly().click();
    EXPECT_EQ(cities(), QStringList{u"New York"_s});
    EXPECT_FALSE(shows(u"No time zone matches “york”"_s));
}

TEST_F(FavoritesListTest, UnstarredRowLeavesItsPlaceToTheNext) {
    starredOnly().click();
    QTest::keyClick(&field(), Qt::Key_Down);
    QTest::keyClick(&field(), Qt::Key_Down);
    EXPECT_EQ(list().currentIndex(), row(1));
    QTest::keyClick(&field(), Qt::Key_Return);
    queue.run();
    EXPECT_EQ(cities(), (QStringList{u"New York"_s, u"Tokyo"_s}));
    EXPECT_EQ(list().currentIndex(), row(1));
    QTest::keyClick(&field(), Qt::Key_Return);
    queue.run();
    EXPECT_EQ(cities(), QStringList{u"New York"_s});
    EXPECT_EQ(list().currentIndex(), row(0)); // there is no later one
    QTest::keyClick(&field(), Qt::Key_Return);
    queue.run();
    EXPECT_EQ(count(), 0);
    EXPECT_FALSE(list().currentIndex().isValid());
}

TEST_F(FavoritesListTest, UnstarringKeepsTheScrollPosition) {
    QStringList many;
    for (const auto& entry : catalogue.entries())
        many.append(entry.zone.identifier());
    model->setFavoriteTimeZoneIdentifiers(many);
    starredOnly().click();
    queue.run();
    list().verticalScrollBar()->setValue(3000);
    const auto above = list().indexAt({200, 10});
    const auto city = above.data().toString();
    const auto place = list().visualRect(above);
    QTest::mouseClick(list().viewport(), Qt::LeftButton, {}, {200, 100});
    queue.run();
    EXPECT_EQ(count(), everything - 1);
    EXPECT_EQ(list().verticalScrollBar()->value(), 3000);
    EXPECT_EQ(list().visualRect(row(rowOf(city))), place);
}

TEST_F(FavoritesListTest, CurrentRowFollowsItsZoneWhenFavoritesChangeElsewhere) {
    starredOnly().click();
    QTest::keyClick(&field(), Qt::Key_Down);
    QTest::keyClick(&field(), Qt::Key_Down);
    model->setFavoriteTimeZoneIdentifiers(
        {u"America/Los_Angeles"_s, u"Europe/Paris"_s, u"Asia/Tokyo"_s});
    model->setFavoriteTimeZoneIdentifiers(
        {u"America/Los_Angeles"_s, u"America/Chicago"_s, u"Europe/Paris"_s});
    EXPECT_EQ(cities(), (QStringList{u"New York"_s, u"Paris"_s, u"Tokyo"_s}));
    queue.run();
    EXPECT_EQ(cities(), (QStringList{u"Los Angeles"_s, u"Chicago"_s, u"Paris"_s}));
    EXPECT_EQ(list().currentIndex(), row(2));
}

TEST_F(FavoritesListTest, FavoritesThatChangeElsewhereAreShown) {
    model->setFavoriteTimeZoneIdentifiers({u"Europe/London"_s});
    queue.run();
    EXPECT_TRUE(isStarred(u"London"_s));
    EXPECT_FALSE(isStarred(u"Tokyo"_s));
    EXPECT_TRUE(queue.isIdle());
}

TEST_F(FavoritesListTest, KeysInTheFieldMoveTheListAndReturnToggles) {
    search(u"york"_s);
    QTest::keyClick(&field(), Qt::Key_Return);
    EXPECT_EQ(favorites().size(), 4); // no row is current
    QTest::keyClick(&field(), Qt::Key_Down);
    QTest::keyClick(&field(), Qt::Key_Return);
    EXPECT_FALSE(favorites().contains(u"America/New_York"_s));
    QTest::keyClick(&field(), Qt::Key_Space);
    EXPECT_EQ(field().text(), u"york "_s);
    EXPECT_EQ(view->focusWidget(), &field());
}

TEST_F(FavoritesListTest, KeysInTheListMoveAndToggleAndTextGoesToTheField) {
    list().setFocus(Qt::TabFocusReason);
    ASSERT_TRUE(list().currentIndex().isValid());
    QTest::keyClick(&list(), Qt::Key_Down);
    EXPECT_EQ(list().currentIndex(), row(1));
    QTest::keyClick(&list(), Qt::Key_Space);
    EXPECT_EQ(favorites().last(), u"Pacific/Midway"_s);
    QTest::keyClick(&list(), Qt::Key_Return);
    EXPECT_FALSE(favorites().contains(u"Pacific/Midway"_s));
    QTest::keyClick(&list(), Qt::Key_N);
    EXPECT_EQ(view->focusWidget(), &field());
    EXPECT_EQ(field().text(), u"n"_s);
}

TEST_F(FavoritesListTest, RowsAreNamedDescribedAndCheckable) {
    auto* rows = QAccessible::queryAccessibleInterface(&list());
    ASSERT_EQ(rows->childCount(), everything);
    const auto* newYork = rows->child(rowOf(u"New York"_s));
    EXPECT_EQ(newYork->text(QAccessible::Name), u"New York"_s);
    EXPECT_EQ(newYork->text(QAccessible::Description), u"UTC-5, EST"_s);
    EXPECT_TRUE(newYork->state().checkable);
    EXPECT_TRUE(newYork->state().checked);
    const auto* london = rows->child(rowOf(u"London"_s));
    EXPECT_EQ(london->text(QAccessible::Description), u"UTC+0"_s);
    EXPECT_FALSE(london->state().checked);
}

} // namespace
} // namespace quorvane
