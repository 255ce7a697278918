// SPDX-License-Identifier: MIT
#pragma once

#include <controls/PopoverEffects.h>

#include <QProxyStyle>

namespace quorvane {

/// The application's style, with tooltips on the same surface as popovers: the theme's colours,
/// round corners where windows are composited, room around the text.
class ToolTipStyle : public QProxyStyle {
    Q_OBJECT

public:
    explicit ToolTipStyle(PopoverEffects effects = {});

    void polish(QWidget* widget) override;
    using QProxyStyle::polish;

    void drawPrimitive(
        PrimitiveElement element,
        const QStyleOption* option,
        QPainter* painter,
        const QWidget* widget) const override;

    [[nodiscard]] int pixelMetric(
        PixelMetric metric, const QStyleOption* option, const QWidget* widget) const override;

    int styleHint(
        StyleHint hint,
        const QStyleOption* option = nullptr,
        const QWidget* widget = nullptr,
        QStyleHintReturn* returned = nullptr) const override;

private:
    PopoverEffects m_effects;
};

} // namespace quorvane
