// SPDX-License-Identifier: MIT
#pragma once

#include "DelegateFixture.h"
#include "VisibleTexts.h"

#include <controls/PressableControl.h>
#include <testing/PseudoTexts.h>
#include <time/DateText.h>
#include <time/MonthGrid.h>
#include <time/SpanText.h>
#include <time/ZoneNames.h>

#include <QLineEdit>
#include <QSet>
#include <QTest>

namespace quorvane {

/// What a text has of plain letters.
inline QStringList wordsOf(const QString& text) {
    QString letters;
    for (const auto character : text)
        letters += character.unicode() < 0x80 && character.isLetter() ? character : QChar(u' ');
    return letters.split(u' ', Qt::SkipEmptyParts);
}

/// The program in a language that puts accents on what it translates. Whatever shows plain letters
/// must be data: dates, zones, key caps, the program's name and what the user typed.
class TranslationFixture : public DelegateFixture {
protected:
    TranslationFixture() {
        QCoreApplication::installTranslator(&m_language);
        makeDelegate();
        collectData();
        launch();
        queue.run();
    }

    ~TranslationFixture() override { QCoreApplication::removeTranslator(&m_language); }

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
            if (control->isVisible() && accessibleName(control) == PseudoTexts::pseudo(name)) {
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
        return window(PseudoTexts::pseudo(QStringLiteral("Quorvane Preferences")), Qt::Window);
    }

    void addData(const QString& text) {
        for (const auto& word : wordsOf(text))
            m_data.insert(word);
    }

private:
    void addZone(const QString& identifier) {
        addData(identifier);
        if (const auto zone = zones.zone(identifier))
            addData(zoneAbbreviation(*zone, clock.now(), delegate->model().locale())
                        .value_or(QString()));
    }

    void collectData() {
        auto& model = delegate->model();
        addData(QStringLiteral("Quorvane UTC GMT yyyy MM dd HH mm zzz C D Q"));
        const auto identifiers = zones.zonesByCountry() +
                                 QStringList{QStringLiteral("UTC"), QStringLiteral("Etc/GMT+12")};
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

    PseudoTexts m_language;
    QSet<QString> m_data;
};

} // namespace quorvane
