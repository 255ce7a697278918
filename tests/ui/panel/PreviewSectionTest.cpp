// SPDX-License-Identifier: MIT
#include "PopoverFixture.h"

#include <controls/ColorContrast.h>
#include <controls/OverlayScrollBar.h>
#include <controls/Theme.h>
#include <panel/OutputPreview.h>

#include <QLabel>
#include <QLayout>
#include <QScrollArea>
#include <QScrollBar>

#include <algorithm>

namespace quorvane {
namespace {

using namespace Qt::StringLiterals;

class PreviewSectionTest : public PopoverFixture {
protected:
    OutputPreview& output() { return *view.findChild<OutputPreview*>(); }

    QLabel& prompt() { return find<QLabel>(QAccessible::StaticText, u"Choose a time zone"_s); }

    void showLines(qsizetype count) {
        auto identifiers = zones.zonesByCountry();
        model.setFavoriteTimeZoneIdentifiers({});
        // A day's span has few rows of chips and many of text.
        model.setIsRange(true);
        model.setSelectedTimeZones(zones.zones(identifiers.first(count)));
        model.setMultiZoneLayout(MultiZoneLayout::Lines);
        settle();
    }

    void settle() {
        queue.run();
        QApplication::sendPostedEvents();
    }

    void setHeight(int height) {
        view.resize(view.width(), height);
        QApplication::sendPostedEvents();
        view.layout()->activate();
        QApplication::sendPostedEvents();
    }

    /// The height that the view asks for.
    int askedHeight() { return view.layout()->heightForWidth(view.width()); }

    /// The height at which nothing scrolls.
    int wholeHeight() {
        setHeight(3000);
        return askedHeight();
    }

    /// The names of what shows a scroll bar.
    QStringList barsShown() {
        QStringList names;
        for (const auto* bar : view.findChildren<OverlayScrollBar*>()) {
            if (bar->isVisible())
                names.append(
                    bar->parentWidget()->accessibleName() == u"Preview"_s ? u"preview"_s
                                                                          : u"column"_s);
        }
        return names;
    }
};

TEST_F(PreviewSectionTest, NothingScrollsWhereThereIsRoom) {
    showLines(6);
    setHeight(wholeHeight());
    EXPECT_EQ(barsShown(), QStringList());
    EXPECT_EQ(output().verticalScrollBar()->maximum(), 0);
}

TEST_F(PreviewSectionTest, PreviewAloneScrollsWhereSomeOfItsRowsFit) {
    showLines(12);
    const int whole = wholeHeight();
    setHeight(whole - 60);
    EXPECT_EQ(barsShown(), QStringList{u"preview"_s});
    EXPECT_GT(output().verticalScrollBar()->maximum(), 0);
    EXPECT_EQ(askedHeight(), whole) << "asks for as much as before";
    setHeight(whole);
    EXPECT_EQ(barsShown(), QStringList());
    EXPECT_EQ(output().verticalScrollBar()->maximum(), 0);
}

TEST_F(PreviewSectionTest, ColumnAloneScrollsWhereThereIsTooLittleRoom) {
    showLines(6);
    setHeight(300);
    EXPECT_EQ(barsShown(), QStringList{u"column"_s});
    EXPECT_EQ(output().verticalScrollBar()->maximum(), 0);
}

TEST_F(PreviewSectionTest, WhatScrollsDependsOnTheHeightAlone) {
    showLines(12);
    const int whole = wholeHeight();
    const int leastOfPreview = 5 * 18 + 20;
    const int spare = output().heightForWidth(output().width()) - leastOfPreview;
    ASSERT_GT(spare, 80);
    for (const int less : {0, 300, 20, spare - 20, 0, spare + 20, 60, 400, spare - 20, 300, 20}) {
        setHeight(whole - less);
        const auto expected = less == 0       ? QStringList()
                              : less <= spare ? QStringList{u"preview"_s}
                                              : QStringList{u"column"_s};
        EXPECT_EQ(barsShown(), expected) << less << " of " << spare;
    }
}

TEST_F(PreviewSectionTest, NeverMoreThanOneBarShows) {
    for (const qsizetype count : {2, 12, 30, 60}) {
        showLines(count);
        for (const int height : {260, 400, 560, 720, 900, 1400, 2400}) {
            setHeight(height);
            EXPECT_LE(barsShown().size(), 1) << count << " lines in " << height;
        }
    }
}

TEST_F(PreviewSectionTest, PreviewTakesItsHeightBackWhenItsTextBecomesShort) {
    showLines(12);
    setHeight(wholeHeight() - 60);
    ASSERT_EQ(barsShown(), QStringList{u"preview"_s});
    model.setSelectedTimeZones({*zones.zone(u"UTC"_s)});
    model.setIsRange(false);
    settle();
    setHeight(wholeHeight());
    EXPECT_EQ(barsShown(), QStringList());
    EXPECT_EQ(output().height(), 38);
}

TEST_F(PreviewSectionTest, WithoutAZoneItAsksForOne) {
    EXPECT_FALSE(prompt().isVisible());
    model.setSelectedTimeZones({});
    queue.run();
    QApplication::sendPostedEvents();
    ASSERT_TRUE(prompt().isVisible());
    EXPECT_TRUE(prompt().isEnabled());
    EXPECT_FALSE(QAccessible::queryAccessibleInterface(&prompt())->state().disabled);
    const auto place = QRect(output().mapTo(&view, QPoint()), output().size());
    const auto asked = QRect(prompt().mapTo(&view, QPoint()), prompt().size());
    EXPECT_TRUE(place.contains(asked));
    EXPECT_EQ(asked.left(), place.left() + 10);
    model.setSelectedTimeZones({*zones.zone(u"UTC"_s)});
    queue.run();
    EXPECT_FALSE(prompt().isVisible());
}

TEST_F(PreviewSectionTest, WithoutATimeThereIsNothingToAskFor) {
    model.setSelectedTimeZones({});
    model.setIncludeTime(false);
    queue.run();
    EXPECT_FALSE(prompt().isVisible());
}

TEST_F(PreviewSectionTest, RequestForAZoneCanBeReadThoughAllAroundItIsDimmed) {
    model.setSelectedTimeZones({});
    queue.run();
    QApplication::sendPostedEvents();
    const auto image = view.grab().toImage();
    const QRect asked(prompt().mapTo(&view, QPoint()), prompt().size());
    QColor darkest = Qt::white;
    QColor lightest = Qt::black;
    for (int y = asked.top(); y <= asked.bottom(); ++y) {
        for (int x = asked.left(); x < asked.left() + 100; ++x) {
            const QColor pixel(image.pixel(x, y));
            darkest = std::min(
                darkest, pixel, [](auto a, auto b) { return qGray(a.rgb()) < qGray(b.rgb()); });
            lightest = std::max(
                lightest, pixel, [](auto a, auto b) { return qGray(a.rgb()) < qGray(b.rgb()); });
        }
    }
    EXPECT_GE(contrastRatio(darkest, lightest), 4.5);
}

} // namespace
} // namespace quorvane
