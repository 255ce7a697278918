// SPDX-License-Identifier: MIT
#include "EntryFixture.h"
#include "TimePickerPopover.h"

#include <controls/ColorContrast.h>
#include <controls/SegmentedChip.h>
#include <controls/Theme.h>
#include <entry/TimeField.h>
#include <support/ControlWindow.h>

#include <QFontInfo>

namespace quorvane {
namespace {

using namespace Qt::StringLiterals;

class TimePickerMeasuresTest : public EntryFixture {
protected:
    TimeField chip{binding(), {}, dependencies(), &window};

    TimePickerMeasuresTest() {
        QFont font(u"Inter"_s);
        font.setPixelSize(13);
        window.setFont(font);
        window.setPalette(builtInPalette(ColorScheme::Light));
        chip.setGeometry(20, 20, 120, 30);
        showWindow();
        chip.click();
    }

    TimePickerPopover& entry() { return *window.findChild<TimePickerPopover*>(); }

    QLineEdit& hour() { return find<QLineEdit>(QAccessible::SpinBox, u"Hour"_s); }

    QLineEdit& minute() { return find<QLineEdit>(QAccessible::SpinBox, u"Minute"_s); }

    SegmentedChip& period() { return *entry().findChild<SegmentedChip*>(); }

    Theme theme() { return Theme::of(entry().palette()); }

    /// The bounds of what is painted between the fields.
    QRect colon() {
        const auto image = picture(entry());
        const QRect gap(
            hour().geometry().topRight() + QPoint(2, 0),
            minute().geometry().bottomLeft() - QPoint(2, 0));
        const QRgb background = image.pixel(gap.topLeft());
        QRect bounds;
        for (int y = gap.top(); y <= gap.bottom(); ++y) {
            for (int x = gap.left(); x <= gap.right(); ++x) {
                if (std::abs(qGray(image.pixel(x, y)) - qGray(background)) > 40)
                    bounds |= QRect(x, y, 1, 1);
            }
        }
        return bounds;
    }

    static void expectColor(QRgb seen, const QColor& color, const char* what) {
        EXPECT_NEAR(qRed(seen), color.red(), 2) << what;
        EXPECT_NEAR(qGreen(seen), color.green(), 2) << what;
        EXPECT_NEAR(qBlue(seen), color.blue(), 2) << what;
    }
};

TEST_F(TimePickerMeasuresTest, FieldsAndSegmentsStandInARow) {
    const QSize fieldSize(52, 48);
    EXPECT_EQ(hour().geometry(), QRect(QPoint(16, 16), fieldSize));
    EXPECT_EQ(minute().size(), fieldSize);
    EXPECT_EQ(minute().y(), 16);
    EXPECT_EQ(period().width(), 80);
    EXPECT_EQ(period().x() - minute().geometry().right() - 1, 10 + 4);
    // What one sees of the button is its word, 8 within it.
    const auto now = button(u"Now"_s).geometry();
    EXPECT_EQ(now.x() - period().geometry().right() - 1, 10);
    EXPECT_EQ(entry().width() - now.right() - 1, 16 - 8);
    EXPECT_EQ(entry().height(), 16 + 48 + 16);
}

TEST_F(TimePickerMeasuresTest, ColonStandsTenFromBothFields) {
    const int gap = minute().x() - hour().geometry().right() - 1;
    EXPECT_EQ(gap, 10 + 6 + 10);
    EXPECT_NEAR(colon().left() - hour().geometry().right() - 1, 12, 1.5);
    EXPECT_NEAR(minute().x() - colon().right() - 1, 12, 1.5);
    EXPECT_NEAR(colon().center().y(), hour().geometry().center().y(), 1);
}

TEST_F(TimePickerMeasuresTest, ColonIsLargeAndThin) {
    QFont font(u"Inter"_s);
    font.setPixelSize(26);
    font.setWeight(QFont::ExtraLight);
    const auto thin = QFontMetricsF(font).tightBoundingRect(u":"_s);
    EXPECT_NEAR(colon().height(), thin.height(), 1.5);
    EXPECT_NEAR(colon().width(), thin.width(), 1);
}

TEST_F(TimePickerMeasuresTest, DigitsAreLargeLightAndCentred) {
    for (auto* digits : {&hour(), &minute()}) {
        EXPECT_EQ(digits->font().pixelSize(), 28);
        EXPECT_EQ(digits->font().weight(), QFont::Light);
        EXPECT_TRUE(digits->alignment().testFlag(Qt::AlignHCenter));
    }
}

TEST_F(TimePickerMeasuresTest, FieldWithTheFocusHasAFrameOfTwoInTheAccent) {
    ASSERT_TRUE(hour().hasFocus());
    const auto image = picture(hour());
    expectColor(image.pixel(0, 24), theme().accentText, "first line");
    expectColor(image.pixel(1, 24), theme().accentText, "second line");
    expectColor(image.pixel(2, 24), theme().controlBackground, "fill");
}

TEST_F(TimePickerMeasuresTest, OtherFieldHasAFrameOfOneInTheBordersColour) {
    ASSERT_FALSE(minute().hasFocus());
    const auto image = picture(minute());
    expectColor(
        image.pixel(0, 24), blended(theme().border, theme().controlBackground), "only line");
    expectColor(image.pixel(1, 24), theme().controlBackground, "fill");
}

} // namespace
} // namespace quorvane
