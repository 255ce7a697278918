// SPDX-License-Identifier: MIT
#include "TranslationFixture.h"

#include <QMenu>
#include <QMessageBox>

namespace quorvane {
namespace {

using namespace Qt::StringLiterals;

using TranslationTest = TranslationFixture;

TEST_F(TranslationTest, OfThePanelWithAllItsSections) {
    expectTranslated(panel());
    auto& model = delegate->model();
    model.setIsRange(true);
    model.setSelectedTimeZones({*zones.zone(u"Asia/Tokyo"_s), *zones.zone(u"America/New_York"_s)});
    model.setFormatPreset(DateFormatPreset::Custom);
    expectTranslated(panel());
    press(*panel(), u"Copy"_s);
    expectTranslated(panel());
}

TEST_F(TranslationTest, OfWhatThePanelOpens) {
    delegate->model().setIsRange(true);
    queue.run();
    expectTranslatedBehind(*panel(), "quorvane::FieldChip", 4);
    expectTranslatedBehind(*panel(), "quorvane::MenuButton", 1);
    expectTranslatedBehind(*panel(), "quorvane::PopUpButton", 1);
}

TEST_F(TranslationTest, OfThePicker) {
    press(*panel(), u"Add time zone"_s);
    expectTranslated(panel());
    auto* field = visibleField(*panel());
    ASSERT_NE(field, nullptr);
    QTest::keyClicks(field, u"99999"_s);
    expectTranslated(panel());
}

TEST_F(TranslationTest, OfThePopover) {
    delegate->model().setPresentationMode(PresentationMode::Popover);
    queue.run();
    statusBar->click(StatusItem::Click::Left);
    queue.run();
    expectTranslated(popover());
}

TEST_F(TranslationTest, OfThePreferences) {
    delegate->showPreferences();
    expectTranslated(preferencesWindow());
    press(*preferencesWindow(), u"Record new shortcut"_s);
    expectTranslated(preferencesWindow());
    press(*preferencesWindow(), u"Cancel"_s);
    delegate->model().setShowInMenuBar(false);
    expectTranslated(preferencesWindow());
    auto* field = visibleField(*preferencesWindow());
    ASSERT_NE(field, nullptr);
    QTest::keyClicks(field, u"99999"_s);
    expectTranslated(preferencesWindow());
}

TEST_F(TranslationTest, OfPreferencesWithoutFavourites) {
    delegate->model().setFavoriteTimeZoneIdentifiers({});
    delegate->showPreferences();
    queue.run();
    press(*preferencesWindow(), u"Show starred only"_s);
    expectTranslated(preferencesWindow());
}

TEST_F(TranslationTest, OfMenus) {
    QStringList titles;
    for (const auto& entry : statusBar->publishedMenu)
        titles.append(entry.title);
    for (const auto* widget : QApplication::allWidgets()) {
        if (const auto* menu = qobject_cast<const QMenu*>(widget))
            titles += visibleTexts(*menu);
    }
    EXPECT_GE(titles.size(), 10);
    expectTranslated(titles);
}

TEST_F(TranslationTest, OfTheWordAboutUpdates) {
    static_cast<FakeSoftwareCentre&>(*platform.softwareCentre).isInstalled = false;
    delegate->checkForUpdates();
    for (auto* widget : QApplication::topLevelWidgets()) {
        if (auto* message = qobject_cast<QMessageBox*>(widget)) {
            expectTranslated(message);
            expectTranslated({message->text(), message->informativeText()});
            message->close();
            return;
        }
    }
    FAIL();
}

TEST_F(TranslationTest, FindsATextThatIsNotTranslated) {
    EXPECT_EQ(wordsOf(PseudoTexts::pseudo(u"Quit %1 now"_s)), QStringList());
    EXPECT_EQ(wordsOf(u"Quit %1"_s), QStringList{u"Quit"_s});
}

} // namespace
} // namespace quorvane
