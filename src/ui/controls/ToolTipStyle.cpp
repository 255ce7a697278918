// SPDX-License-Identifier: MIT
#include <controls/DevicePixels.h>
#include <controls/Theme.h>
#include <controls/ToolTipStyle.h>

#include <QApplication>
#include <QPainter>
#include <QWidget>

#include <utility>

namespace quorvane {

namespace {

constexpr double cornerRadius = 6;
constexpr double frameWidth = 1;
// Qt adds 1 to the frame's width, and 1 more before the text.
constexpr int verticalPadding = 4;
constexpr int moreAtTheSides = 3;

bool isToolTip(const QWidget* widget) {
    return widget != nullptr && widget->inherits("QTipLabel");
}

} // namespace

ToolTipStyle::ToolTipStyle(PopoverEffects effects) : m_effects(std::move(effects)) {
}

void ToolTipStyle::polish(QWidget* widget) {
    QProxyStyle::polish(widget);
    if (!isToolTip(widget))
        return;
    // Each tooltip is a window of its own, which knows nothing of the one that it is about.
    const auto theme = Theme::of(QApplication::palette());
    auto palette = QApplication::palette();
    palette.setColor(QPalette::ToolTipBase, theme.popoverBackground);
    palette.setColor(QPalette::ToolTipText, theme.text);
    widget->setPalette(palette);
    widget->setContentsMargins(moreAtTheSides, 0, moreAtTheSides, 0);
    widget->setAttribute(
        Qt::WA_TranslucentBackground, m_effects.isComposited && m_effects.isComposited());
}

void ToolTipStyle::drawPrimitive(
    PrimitiveElement element,
    const QStyleOption* option,
    QPainter* painter,
    const QWidget* widget) const {
    if (element != PE_PanelTipLabel || !isToolTip(widget)) {
        QProxyStyle::drawPrimitive(element, option, painter, widget);
        return;
    }
    const auto theme = Theme::of(widget->palette());
    const QRectF place(widget->rect());
    const bool isRound = widget->testAttribute(Qt::WA_TranslucentBackground);
    if (isRound)
        fillRounded(*painter, place, cornerRadius, theme.popoverBackground);
    else
        painter->fillRect(place, theme.popoverBackground);
    frameRounded(*painter, place, isRound ? cornerRadius : 0, theme.border, frameWidth);
}

QIcon ToolTipStyle::standardIcon(
    StandardPixmap sign, const QStyleOption* option, const QWidget* widget) const {
    // A bar of menus asks for it when it is made. Ours show in no window, and to read the sign Qt
    // would load all that it has for pictures: six libraries, half a megabyte.
    return sign == SP_ToolBarHorizontalExtensionButton
               ? QIcon()
               : QProxyStyle::standardIcon(sign, option, widget);
}

int ToolTipStyle::pixelMetric(
    PixelMetric metric, const QStyleOption* option, const QWidget* widget) const {
    return metric == PM_ToolTipLabelFrameWidth ? verticalPadding
                                               : QProxyStyle::pixelMetric(metric, option, widget);
}

int ToolTipStyle::styleHint(
    StyleHint hint,
    const QStyleOption* option,
    const QWidget* widget,
    QStyleHintReturn* returned) const {
    constexpr int opaque = 255;
    if (hint == SH_ToolTipLabel_Opacity)
        return opaque;
    if (hint == SH_ToolTip_Mask)
        return 0;
    return QProxyStyle::styleHint(hint, option, widget, returned);
}

} // namespace quorvane
