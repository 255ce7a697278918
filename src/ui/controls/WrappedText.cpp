// SPDX-License-Identifier: MIT
#include <controls/Theme.h>
#include <controls/WrappedText.h>

#include <QPainter>
#include <QStyle>
#include <QTextLayout>

#include <algorithm>
#include <cmath>

namespace quorvane {

namespace {

/// Of a line's height to its font's size.
double leadingOf(TextStyle style) {
    switch (style) {
    case TextStyle::Title:
        return 20.0 / 15;
    case TextStyle::Headline:
    case TextStyle::Body:
        return 16.0 / 13;
    case TextStyle::Callout:
        return 16.0 / 12;
    case TextStyle::Caption:
        return 14.0 / 10;
    }
    return 1;
}

} // namespace

int lineHeight(const QFont& body, TextStyle style) {
    const auto font = textFont(body, style);
    return std::max(qRound(font.pixelSize() * leadingOf(style)), QFontMetrics(font).height());
}

WrappedText::WrappedText(const QString& text, TextStyle style, Color color, QWidget* parent)
    : QLabel(text, parent),
      m_style(style),
      m_color(color) {
    setTextFormat(Qt::PlainText);
    setWordWrap(true);
}

QSize WrappedText::sizeHint() const {
    const QFontMetricsF metrics(textFont(font(), m_style));
    return {
        static_cast<int>(std::ceil(metrics.horizontalAdvance(text()))),
        lineHeight(font(), m_style)};
}

QSize WrappedText::minimumSizeHint() const {
    const auto narrow = lines(1);
    return {static_cast<int>(std::ceil(narrow->minimumWidth())), lineHeight(font(), m_style)};
}

int WrappedText::heightForWidth(int width) const {
    return lines(width)->lineCount() * lineHeight(font(), m_style);
}

void WrappedText::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    const auto theme = Theme::of(palette());
    painter.setPen(m_color == Color::Primary ? theme.text : theme.secondaryText);
    lines(width())->draw(&painter, QPointF());
}

std::unique_ptr<QTextLayout> WrappedText::lines(int width) const {
    const auto font = textFont(this->font(), m_style);
    const QFontMetricsF metrics(font);
    QTextOption option(QStyle::visualAlignment(layoutDirection(), Qt::AlignLeft));
    option.setTextDirection(layoutDirection());
    option.setWrapMode(QTextOption::WordWrap);
    auto layout = std::make_unique<QTextLayout>(text(), font);
    layout->setTextOption(option);
    layout->setCacheEnabled(true);
    const int height = lineHeight(this->font(), m_style);
    const double inset = std::round((height - metrics.height()) / 2);
    double top = 0;
    layout->beginLayout();
    for (auto line = layout->createLine(); line.isValid(); line = layout->createLine()) {
        line.setLineWidth(width);
        // Another font's letters stand on the same base line.
        line.setPosition({0, top + inset + metrics.ascent() - line.ascent()});
        top += height;
    }
    layout->endLayout();
    return layout;
}

} // namespace quorvane
