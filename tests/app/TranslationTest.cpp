// SPDX-License-Identifier: MIT
#include "DelegateFixture.h"
#include "MarkedTexts.h"
#include "VisibleTexts.h"

#include <controls/PressableControl.h>
#include <time/DateText.h>
#include <time/MonthGrid.h>
#include <time/SpanText.h>
#include <time/ZoneNames.h>

#include <QLineEdit>
#include <QMenu>
#include <QMessageBox>
#include <QSet>
#include <QTest>

namespace quorvane {
namespace {

using namespace Qt::StringLiterals;

QStringList wordsOf(const QString& text) {
    QString letters;
    for (const auto character : text)
        letters += character.unicode() < 0x80 && character.isLetter() ? character : QChar(u' ');
    return letters.split(u' ', Qt::SkipEmptyParts);
}

/// The program in a language that marks what it translates. Whatever shows without the marks must
/// be data: dates, zones, key caps, the program's name and what the user typed.
class TranslationTest : public DelegateFixture {
protected:
    TranslationTest() {
        QCoreApplication::installTranslator(&m_language);
        makeDelegate();
        collectData();
        launch();
        queue.run();
    }

    ~TranslationTest() override { QCoreApplication::removeTranslator(&m_language); }

    void expectTranslated(const QStringList& texts) {
        for (const auto& text : texts) {
            for (const auto& word : wordsOf(text))
                EXPECT_TRUE(m_data.contains(word)) << '"' << text.toStdString() << '"';
        }
    }

    void expectTranslated(const QWidget* window) {
        ASSERT_NE(window, nullptr);
        queue.run();
        const auto texts = visibleTexts(*window);
        EXPECT_FALSE(texts.isEmpty());
        expectTranslated(texts);
    }

    static std::vector<PressableControl*> controls(const QWidget& window, const char* className) {
        std::vector<PressableControl*> found;
        for (auto* control : window.findChildren<PressableControl*>()) {
            if (control->isVisible() && control->inherits(className))
                found.push_back(control);
        }
        return found;
    }

    /// Presses the control that assistive technology knows by this name.
    static void press(const QWidget& window, const QString& name) {
        for (auto* control : window.findChildren<PressableControl*>()) {
            if (control->isVisible() && accessibleName(control) == MarkedTexts::marked(name)) {
                QTest::mouseClick(control, Qt::LeftButton);
                return;
            }
        }
        FAIL() << name.toStdString();
    }

    static QString accessibleName(PressableControl* control) {
        return QAccessible::queryAccessibleInterface(control)->text(QAccessible::Name);
    }

    /// Opens what each control of a class opens, and looks into it.
    void expectTranslatedBehind(const QWidget& window, const char* className, std::size_t count) {
        const auto openers = controls(window, className);
        EXPECT_EQ(openers.size(), count) << className;
        for (auto* opener : openers) {
            QTest::mouseClick(opener, Qt::LeftButton);
            auto* opened = opener->openedSurface();
            expectTranslated(opened);
            ASSERT_NE(opened, nullptr);
            QTest::keyClick(opened, Qt::Key_Escape);
            queue.run();
        }
    }

    static QLineEdit* visibleField(const QWidget& window) {
        for (auto* field : window.findChildren<QLineEdit*>()) {
            if (field->isVisible())
                return field;
        }
        return nullptr;
    }

    static QWidget* preferencesWindow() {
        return window(MarkedTexts::marked(u"Quorvane Preferences"_s), Qt::Window);
    }

private:
    void addData(const QString& text) {
        for (const auto& word : wordsOf(text))
            m_data.insert(word);
    }

    void addZone(const QString& identifier) {
        addData(identifier);
        if (const auto zone = zones.zone(identifier))
            addData(zoneAbbreviation(*zone, clock.now(), delegate->model().locale())
                        .value_or(QString()));
    }

    void collectData() {
        auto& model = delegate->model();
        addData(u"Quorvane UTC GMT yyyy MM dd HH mm zzz C D Q"_s);
        const auto identifiers = zones.zonesByCountry() + QStringList{u"UTC"_s, u"Etc/GMT+12"_s};
        for (const auto& identifier : identifiers)
            addZone(identifier);
        for (const auto preset : allDateFormatPresets)
            addData(model.formatSingle(clock.now(), currentZone.current(), preset));
        addData(timeChipText(clock.now(), currentZone.current(), model.locale()));
        addData(spanWords({0, 1, 0}, model.locale()));
        const auto grid = monthGrid(civilDay(clock.now(), currentZone.current()), model.locale());
        addData(grid.title);
        for (const auto& name : grid.weekdayNames)
            addData(name);
        for (const auto& day : grid.days)
            addData(day.fullText);
    }

    MarkedTexts m_language;
    QSet<QString> m_data;
};

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
    EXPECT_EQ(wordsOf(MarkedTexts::marked(u"Quit %1 now"_s)), QStringList());
    EXPECT_EQ(wordsOf(u"Quit %1"_s), QStringList{u"Quit"_s});
}

} // namespace
} // namespace quorvane
