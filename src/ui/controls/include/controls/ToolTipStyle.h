// SPDX-License-Identifier: MIT
#pragma once

#include <controls/PopoverEffects.h>

#include <QIcon>
#include <QProxyStyle>

namespace quorvane {

/// The application's style, with tooltips on the same surface as popovers: the theme's colours,
/// round corners where windows are composited, room around the text; and without Qt's sign for a
/// menu bar's further entries, which nobody sees.
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

    [[nodiscard]] QIcon standardIcon(
        StandardPixmap sign,
        const QStyleOption* option = nullptr,
        const QWidget* widget = nullptr) const override;

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
