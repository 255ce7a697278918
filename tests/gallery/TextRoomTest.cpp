// SPDX-License-Identifier: MIT
#include "PanelPlay.h"
#include "PopUpButton.h"
#include "PreferencesBoard.h"
#include "SegmentButton.h"

#include <controls/KeyCap.h>
#include <controls/SearchField.h>
#include <controls/TextStyle.h>
#include <controls/WrappedText.h>
#include <entry/FieldChip.h>
#include <panel/ZoneChip.h>

#include <QApplication>
#include <QBuffer>
#include <QImage>
#include <QLabel>
#include <QSvgGenerator>
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>

namespace quorvane {
namespace {

using namespace Qt::StringLiterals;

void expectRoomForTexts(const QWidget& root) {
    for (const auto* label : root.findChildren<QLabel*>()) {
        if (!label->isVisible())
            continue;
        if (label->wordWrap())
            EXPECT_GE(label->height(), label->heightForWidth(label->width()))
                << label->text().toStdString();
        else
            EXPECT_GE(label->width(), label->sizeHint().width()) << label->text().toStdString();
    }
    for (const auto* control : root.findChildren<PressableControl*>()) {
        if (!control->isVisible())
            continue;
        EXPECT_GE(control->width(), control->sizeHint().width()) << control->text().toStdString();
        EXPECT_GE(control->height(), control->sizeHint().height())
            << control->metaObject()->className() << ' ' << control->text().toStdString();
    }
    for (const auto* field : root.findChildren<QLineEdit*>()) {
        if (!field->isVisible())
            continue;
        const auto room = field->contentsRect().marginsRemoved(field->textMargins());
        EXPECT_GE(room.width(), field->fontMetrics().horizontalAdvance(field->placeholderText()))
            << field->placeholderText().toStdString();
    }
}

/// Every text that a window paints, as it paints it.
QString paintedTexts(QWidget& window) {
    QBuffer buffer;
    QSvgGenerator drawing;
    drawing.setOutputDevice(&buffer);
    drawing.setSize(window.size());
    window.render(&drawing);
    return QString::fromUtf8(buffer.data());
}

class TextRoom : public testing::TestWithParam<BoardSetting> {
protected:
    AppliedSetting applied{GetParam()};
};

TEST_P(TextRoom, NothingOfThePanelIsCutOff) {
    PanelPlay play(GetParam(), [](DateTimeModel& model) {
        sample::composeRange(model, sample::daysLater);
        model.setFormatPreset(DateFormatPreset::Custom);
    });
    expectRoomForTexts(play.view());
}

TEST_P(TextRoom, NothingOfACalendarIsCutOff) {
    PanelPlay play(
        GetParam(), [](DateTimeModel& model) { sample::composeRange(model, sample::daysLater); });
    play.openEndDate();
    expectRoomForTexts(*play.surface());
}

TEST_P(TextRoom, NothingOfAClockIsCutOff) {
    PanelPlay play(GetParam());
    play.openStartTime();
    expectRoomForTexts(*play.surface());
}

TEST_P(TextRoom, NothingOfAMenuIsCutOff) {
    PanelPlay play(GetParam());
    play.openMore();
    expectRoomForTexts(*play.surface());
}

TEST_P(TextRoom, NothingOfThePatternsPageIsCutOff) {
    PanelPlay play(
        GetParam(), [](DateTimeModel& model) { model.setFormatPreset(DateFormatPreset::Custom); });
    play.openPatternPage();
    expectRoomForTexts(*play.surface());
    EXPECT_FALSE(paintedTexts(*play.surface()).contains(u'…'));
}

TEST_P(TextRoom, NothingOfThePickerIsCutOff) {
    PanelPlay play(GetParam());
    play.openPicker();
    expectRoomForTexts(play.view());
    // One of the longest abbreviations and offsets.
    play.search(u"Adelaide"_s);
    const auto texts = paintedTexts(play.view());
    EXPECT_TRUE(texts.contains(u"Adelaide"_s));
    EXPECT_FALSE(texts.contains(u'…'));
}

TEST_P(TextRoom, NothingOfThePreferencesIsCutOff) {
    for (const auto content :
         {PreferencesBoard::Content::Settings, PreferencesBoard::Content::DesktopHelp}) {
        PreferencesBoard board(GetParam().scheme, content);
        board.show();
        expectRoomForTexts(board);
    }
}

constexpr double inkScale = 2;

QImage rendered(QWidget& widget) {
    QImage image(widget.size() * inkScale, QImage::Format_RGB32);
    image.setDevicePixelRatio(inkScale);
    widget.render(&image);
    return image;
}

/// The free space above and below what differs between two pictures, in points.
struct Space {
    double above = 0;
    double below = 0;
};

Space spaceAround(const QImage& with, const QImage& without) {
    int first = with.height();
    int last = -1;
    for (int y = 0; y < with.height(); ++y) {
        for (int x = 0; x < with.width(); ++x) {
            // Half of an edge pixel's colour counts.
            const int change = std::abs(qGray(with.pixel(x, y)) - qGray(without.pixel(x, y)));
            if (change > 70) {
                first = std::min(first, y);
                last = std::max(last, y);
            }
        }
    }
    return {first / inkScale, (with.height() - 1 - last) / inkScale};
}

TEST_P(TextRoom, LettersOfAnotherFontLeaveTheBaseLineWhereItIs) {
    const auto painted = [](const QString& text) {
        WrappedText widget(text, TextStyle::Callout, WrappedText::Color::Primary);
        widget.setLayoutDirection(Qt::LeftToRight);
        widget.resize(200, lineHeight(widget.font(), TextStyle::Callout));
        const auto picture = rendered(widget);
        const QFontMetrics metrics(textFont(widget.font(), TextStyle::Callout));
        const auto first = static_cast<int>(metrics.horizontalAdvance(u'x') * inkScale);
        return picture.copy(0, 0, first, picture.height());
    };
    EXPECT_EQ(painted(u"xx"_s), painted(u"xx \u2068١ س ٣٠ د\u2069"_s));
}

/// Small letters without strokes up or down, all of one width with what they replace.
template <typename Control>
void expectCenteredText(Control& control) {
    control.setText(u"xzx"_s);
    const auto with = rendered(control);
    control.setText({});
    const auto [above, below] = spaceAround(with, rendered(control));
    EXPECT_NEAR(above, below, 2.5) << control.metaObject()->className();
}

TEST_P(TextRoom, SmallLettersStandInTheMiddleOfTheirControl) {
    PanelPlay play(GetParam(), [](DateTimeModel& model) {
        sample::selectZones(model, {u"Asia/Tokyo"_s, u"Europe/London"_s});
        model.setFormatPreset(DateFormatPreset::Custom);
    });
    expectCenteredText(*play.view().findChild<FieldChip*>());
    expectCenteredText(*play.view().findChild<ZoneChip*>());
    expectCenteredText(*play.view().findChild<PopUpButton*>());
    auto& field = *play.view().findChild<TextField*>();
    field.setPlaceholderText({});
    expectCenteredText(field);
}

TEST_P(TextRoom, LabelsStandInTheMiddleOfTheirKeyCap) {
    for (const auto& label :
         {u"Ctrl"_s, u"Alt"_s, u"Shift"_s, u"D"_s, u"←"_s, u"↑"_s, u"→"_s, u"↓"_s, u"…"_s}) {
        KeyCap cap(label);
        cap.resize(cap.sizeHint());
        const auto with = rendered(cap);
        cap.setText({});
        const auto [above, below] = spaceAround(with, rendered(cap));
        EXPECT_NEAR(above, below, 1.5) << label.toStdString();
    }
}

INSTANTIATE_TEST_SUITE_P(
    Settings, TextRoom, testing::ValuesIn(boardSettings()), testing::PrintToStringParamName());

} // namespace
} // namespace quorvane
