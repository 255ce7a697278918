// SPDX-License-Identifier: MIT
#include <controls/ColorContrast.h>
#include <controls/Theme.h>
#include <controls/ToolTipStyle.h>
#include <controls/ToolTipWrapping.h>
#include <support/ControlWindow.h>
#include <support/GalleryFolder.h>

#include <QApplication>
#include <QHelpEvent>
#include <QStyleFactory>
#include <QToolTip>
#include <gtest/gtest.h>

#include <tuple>

namespace quorvane {
namespace {

using namespace Qt::StringLiterals;

using Look = std::tuple<ColorScheme, ContrastLevel, bool>;

std::string nameOf(const testing::TestParamInfo<Look>& look) {
    const auto& [scheme, contrast, isComposited] = look.param;
    return std::string(scheme == ColorScheme::Dark ? "dark" : "light") +
           (contrast == ContrastLevel::High ? "_contrast" : "") +
           (isComposited ? "_composited" : "");
}

/// In every scheme and contrast, on a desktop that composites and on one that does not.
class ToolTips : public testing::TestWithParam<Look> {
protected:
    ToolTips() {
        const auto [scheme, contrast, isComposited] = GetParam();
        QApplication::setStyle(new ToolTipStyle({[isComposited = isComposited] {
            return isComposited;
        }}));
        QApplication::setPalette(builtInPalette(scheme, contrast));
    }

    ~ToolTips() override {
        QToolTip::hideText();
        QApplication::setPalette(QPalette());
        QApplication::setStyle(u"fusion"_s);
    }

    /// As Qt asks a widget for it once the pointer rests.
    QWidget* toolTipOf(QWidget& widget) {
        const auto place = widget.rect().center();
        QHelpEvent rest(QEvent::ToolTip, place, widget.mapToGlobal(place));
        QApplication::sendEvent(&widget, &rest);
        QWidget* shown = nullptr;
        for (auto* top : QApplication::topLevelWidgets()) {
            if (top->inherits("QTipLabel") && top->isVisible())
                shown = top;
        }
        return shown;
    }

    /// Give or take what blending rounds.
    static void expectColor(QRgb pixel, const QColor& color) {
        EXPECT_NEAR(qRed(pixel), color.red(), 1);
        EXPECT_NEAR(qGreen(pixel), color.green(), 1);
        EXPECT_NEAR(qBlue(pixel), color.blue(), 1);
    }

    ToolTipWrapping wrapping;
    ControlWindow window;
};

TEST_P(ToolTips, AreOnTheSurfaceOfPopovers) {
    window.setToolTip(u"Ctrl+Shift+Super+D"_s);
    ASSERT_TRUE(window.open());
    auto* tip = toolTipOf(window);
    ASSERT_NE(tip, nullptr);
    QImage image(tip->size(), QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    tip->render(&image, {}, {}, QWidget::DrawChildren);
    EXPECT_TRUE(
        image.save(galleryFile(u"tooltip-"_s + QString::fromStdString(nameOf({GetParam(), 0})))));
    const auto theme = Theme::of(QApplication::palette());
    const auto colorAt = [&](int x, int y) {
        return blended(image.pixelColor(x, y), theme.popoverBackground).rgb();
    };
    const auto middle = image.height() / 2;
    expectColor(colorAt(3, middle), theme.popoverBackground);
    expectColor(colorAt(0, middle), blended(theme.border, theme.popoverBackground));
    EXPECT_EQ(image.pixelColor(0, 0).alpha() == 0, std::get<2>(GetParam())) << "round corners";
    EXPECT_EQ(tip->windowOpacity(), 1);
    EXPECT_GE(
        contrastRatio(tip->palette().color(QPalette::ToolTipText), theme.popoverBackground), 7);
}

TEST_P(ToolTips, BreakIntoLinesBetweenWords) {
    window.setToolTip(
        u"If your desktop opens a menu on Super alone, press Super last: pressed first, it opens "
        "that menu instead."_s);
    ASSERT_TRUE(window.open());
    const auto* tip = toolTipOf(window);
    ASSERT_NE(tip, nullptr);
    EXPECT_LE(tip->width(), 350);
    EXPECT_TRUE(QToolTip::text().contains(u'\n'));
    EXPECT_EQ(QString(QToolTip::text()).replace(u'\n', u' '), window.toolTip());
}

INSTANTIATE_TEST_SUITE_P(
    Looks,
    ToolTips,
    testing::Combine(
        testing::Values(ColorScheme::Light, ColorScheme::Dark),
        testing::Values(ContrastLevel::Normal, ContrastLevel::High),
        testing::Bool()),
    nameOf);

TEST(ToolTipWrapping, KeepsLinesAndShortTexts) {
    EXPECT_EQ(wrappedToolTip(u"Copy"_s, QFont()), u"Copy"_s);
    EXPECT_EQ(wrappedToolTip(u"one\ntwo"_s, QFont()), u"one\ntwo"_s);
    EXPECT_EQ(wrappedToolTip({}, QFont()), QString());
}

// The libraries that Qt would load to read it are seen in desktop-openbox-idle.
TEST(ToolTipStyle, HasNoSignForTheFurtherEntriesOfABar) {
    const ToolTipStyle style;
    EXPECT_TRUE(style.standardIcon(QStyle::SP_ToolBarHorizontalExtensionButton).isNull());
    EXPECT_FALSE(style.standardIcon(QStyle::SP_ArrowUp).isNull());
}

} // namespace
} // namespace quorvane
