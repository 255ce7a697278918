// SPDX-License-Identifier: MIT
#include "CodeText.h"

#include <controls/ChipSurface.h>
#include <controls/DevicePixels.h>
#include <controls/TextStyle.h>
#include <controls/Theme.h>

#include <QFontDatabase>
#include <QPainter>
#include <QTextLayout>

#include <cmath>

namespace quorvane {

namespace {

constexpr int horizontalPadding = ChipSurface::horizontalPadding;
constexpr int verticalPadding = 8;
constexpr int leastCharacters = 12; ///< in a line

} // namespace

CodeText::CodeText(QWidget* parent) : QLabel(parent) {
    setTextFormat(Qt::PlainText);
    setWordWrap(true);
}

QFont CodeText::textFont() const {
    auto font = quorvane::textFont(this->font(), TextStyle::Callout);
    font.setFamily(QFontDatabase::systemFont(QFontDatabase::FixedFont).family());
    return font;
}

QSize CodeText::sizeHint() const {
    return minimumSizeHint();
}

QSize CodeText::minimumSizeHint() const {
    const QFontMetrics metrics(textFont());
    return {
        leastCharacters * metrics.horizontalAdvance(u'm') + 2 * horizontalPadding,
        metrics.height() + 2 * verticalPadding};
}

int CodeText::heightForWidth(int width) const {
    const double height = lines(width)->boundingRect().height();
    return static_cast<int>(std::ceil(height)) + 2 * verticalPadding;
}

void CodeText::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    const auto theme = Theme::of(palette());
    fillRounded(painter, rect(), ChipSurface::cornerRadius, theme.subtleFill);
    if (theme.isHighContrast)
        frameRounded(painter, rect(), ChipSurface::cornerRadius, theme.border, 1);
    painter.setPen(theme.text);
    lines(width())->draw(&painter, QPointF(horizontalPadding, verticalPadding));
}

std::unique_ptr<QTextLayout> CodeText::lines(int width) const {
    QTextOption option(Qt::AlignLeft | Qt::AlignAbsolute);
    option.setTextDirection(Qt::LeftToRight);
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    auto layout = std::make_unique<QTextLayout>(text(), textFont());
    layout->setTextOption(option);
    layout->setCacheEnabled(true);
    double top = 0;
    layout->beginLayout();
    for (auto line = layout->createLine(); line.isValid(); line = layout->createLine()) {
        line.setLineWidth(width - 2 * horizontalPadding);
        line.setPosition({0, top});
        top += line.height();
    }
    layout->endLayout();
    return layout;
}

} // namespace quorvane
