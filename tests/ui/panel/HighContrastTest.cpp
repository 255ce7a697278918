// SPDX-License-Identifier: MIT
#include "FormatSection.h"
#include "PopUpButton.h"
#include "PopoverFixture.h"
#include "PreviewSection.h"
#include "SectionLabel.h"

#include <controls/ColorContrast.h>
#include <controls/SearchField.h>
#include <controls/TextField.h>
#include <controls/Theme.h>
#include <entry/FieldChip.h>

#include <algorithm>

namespace quorvane {
namespace {

using namespace Qt::StringLiterals;

constexpr double leastContrast = 3; // WCAG 2.1, 1.4.11

/// The panel in black on white or in white on black, measured from what it paints.
class HighContrast : public PopoverFixture, public testing::WithParamInterface<ColorScheme> {
protected:
    HighContrast() {
        view.setPalette(builtInPalette(GetParam(), ContrastLevel::High));
        queue.run();
    }

    QImage picture(QWidget& widget) {
        const auto whole = view.grab().toImage();
        return whole.copy(QRect(widget.mapTo(&view, QPoint()), widget.size()));
    }

    [[nodiscard]] QColor ground() const { return view.palette().color(QPalette::Window); }

    /// Of the strongest pixel on a line to what surrounds it.
    static double strongest(const QImage& image, const QRect& part, const QColor& ground) {
        double contrast = 1;
        for (int y = part.top(); y <= part.bottom(); ++y)
            for (int x = part.left(); x <= part.right(); ++x)
                contrast = std::max(contrast, contrastRatio(image.pixelColor(x, y), ground));
        return contrast;
    }

    /// Of the frame at the middle of a control's leading edge.
    double frameContrast(QWidget& control) {
        const auto image = picture(control);
        return strongest(image, {0, image.height() / 2, 2, 1}, ground());
    }

    template <typename Control>
    Control& one() {
        auto* found = view.findChild<Control*>();
        EXPECT_NE(found, nullptr);
        return *found;
    }
};

TEST_P(HighContrast, FramesOfFieldsAreSeen) {
    model.setFormatPreset(DateFormatPreset::Custom);
    queue.run();
    EXPECT_GE(frameContrast(one<FieldChip>()), leastContrast);
    EXPECT_GE(frameContrast(one<TextField>()), leastContrast);
    SearchField search(u"Search"_s, {}, &view);
    search.setGeometry(20, 60, 200, 30);
    search.show();
    EXPECT_GE(frameContrast(search), leastContrast);
}

TEST_P(HighContrast, DimmedSectionsStayReadableAndHaveAFrame) {
    model.setSelectedTimeZones({});
    queue.run();
    for (auto* section :
         {static_cast<QWidget*>(&one<FormatSection>()),
          static_cast<QWidget*>(&one<PreviewSection>())}) {
        const auto image = picture(*section);
        const auto& label = *section->findChild<SectionLabel*>();
        const QRect name(label.mapTo(section, QPoint(30, 2)), QSize(60, label.height() - 4));
        EXPECT_GE(strongest(image, name, ground()), leastContrast) << "name";
    }
    EXPECT_GE(frameContrast(*view.findChild<PopUpButton*>()), leastContrast);
    const auto preview = picture(one<PreviewSection>());
    const QRect edge(0, preview.height() / 3, 1, preview.height() / 3);
    EXPECT_GE(strongest(preview, edge, ground()), leastContrast);
}

TEST_P(HighContrast, DimmedInsertIsAFrameWithReadableText) {
    model.setSelectedTimeZones({});
    queue.run();
    auto* insert = widgetByRole(view, QAccessible::Button, u"Insert"_s);
    ASSERT_NE(insert, nullptr);
    const auto image = picture(*insert);
    const QRect middle(image.width() / 4, 8, image.width() / 2, image.height() - 16);
    EXPECT_GE(strongest(image, middle, ground()), leastContrast) << "text";
    EXPECT_GE(frameContrast(*insert), leastContrast) << "frame";
    EXPECT_LT(contrastRatio(image.pixelColor(12, image.height() / 2), ground()), 1.1) << "fill";
}

INSTANTIATE_TEST_SUITE_P(
    Schemes,
    HighContrast,
    testing::Values(ColorScheme::Light, ColorScheme::Dark),
    [](const auto& scheme) { return scheme.param == ColorScheme::Dark ? "dark" : "light"; });

} // namespace
} // namespace quorvane
