// SPDX-License-Identifier: MIT
#include "ChoiceRow.h"
#include "MenuChip.h"
#include "SegmentButton.h"

#include <controls/ActionButton.h>
#include <controls/CheckBox.h>
#include <controls/KeyCap.h>
#include <controls/SegmentedChip.h>
#include <controls/TextButton.h>
#include <support/TextFits.h>

#include <gtest/gtest.h>

#include <map>

namespace quorvane {
namespace {

using namespace Qt::StringLiterals;

TEST_P(TextFits, InButtons) {
    auto& insert =
        window.add(new ActionButton(ActionButton::Prominence::Prominent, Symbol::Return, label));
    expectRoom(insert, font(TextStyle::Body, QFont::DemiBold), beside(16) + 6 + 2 * 16);
    auto& copy =
        window.add(new ActionButton(ActionButton::Prominence::Bordered, Symbol::DocOnDoc, label));
    expectRoom(copy, font(TextStyle::Body, QFont::Medium), beside(16) + 6 + 2 * 16);
    auto& done = window.add(new TextButton(label));
    expectRoom(done, font(TextStyle::Body, QFont::DemiBold), 2 * 8);
}

TEST_P(TextFits, InABox) {
    expectRoom(window.add(new CheckBox(label)), font(TextStyle::Body), beside(16) + 8);
}

TEST_P(TextFits, InListsToChooseFrom) {
    auto& chip = window.add(new MenuChip(PopoverEffects{}));
    chip.setChoices({u"Short"_s, label}, 0);
    expectRoom(chip, font(TextStyle::Callout), 6 + beside(10) + 2 * 10);
    expectRoom(window.add(new ChoiceRow(label, true, nullptr)), font(TextStyle::Callout), 32 + 12);
}

TEST_P(TextFits, InSegmentsThatAreSelected) {
    auto& row = window.add(new SegmentedChip);
    row.setChoices({u"Short"_s, label}, 0);
    row.resize(row.sizeHint());
    for (const auto* segment : row.findChildren<SegmentButton*>()) {
        const QFontMetricsF metrics(font(TextStyle::Callout, QFont::DemiBold));
        EXPECT_GE(segment->width() - 4, metrics.horizontalAdvance(segment->text()));
    }
}

TEST_P(TextFits, InKeyCaps) {
    struct Size {
        int cap;
        int text;
    };

    const auto [capSize, textSize] =
        std::map<int, Size>{{9, {17, 9}}, {13, {22, 12}}, {16, {27, 15}}}.at(GetParam());
    for (const auto& key : {u"Super"_s, u"D"_s, u"F12"_s, u"Escape"_s, u"…"_s}) {
        const KeyCap cap(key, &window);
        const QFontMetricsF metrics(fixedSizeFont(window.font(), textSize, QFont::DemiBold));
        EXPECT_EQ(cap.sizeHint().height(), capSize);
        EXPECT_GE(cap.sizeHint().width(), capSize);
        EXPECT_GE(cap.sizeHint().width() - 8, metrics.horizontalAdvance(key));
    }
}

/// Where a label that starts at the leading edge ends, in points.
double inkEnd(QWidget& control, int width, double scale) {
    control.setFixedWidth(width);
    const auto image = picture(control, scale);
    const QRgb background = image.pixel(image.width() - 1, image.height() / 2);
    for (int x = image.width() - 1; x > 0; --x)
        for (int y = 0; y < image.height(); ++y)
            if (image.pixel(x, y) != background)
                return (x + 1) / scale;
    return 0;
}

TEST_P(TextFits, AsItIsDrawnAtEveryScale) {
    CheckBox box(label, &window);
    const int asked = box.sizeHint().width();
    for (const double scale : {1.0, 1.25, 2.0}) {
        const double whole = inkEnd(box, asked + 60, scale);
        EXPECT_LE(whole, asked + 0.5) << scale;
        EXPECT_GT(whole, asked / 2) << scale;
        EXPECT_NEAR(inkEnd(box, asked, scale), whole, 1) << scale;
    }
}

INSTANTIATE_TEST_SUITE_P(BodySizes, TextFits, testing::Values(9, 13, 16));

} // namespace
} // namespace quorvane
