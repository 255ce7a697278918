// SPDX-License-Identifier: MIT
#include "StarredFilter.h"

#include <controls/CheckBox.h>

#include <QEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QStyle>

namespace quorvane {

namespace {

constexpr int boxTarget = 24; ///< around the box of 16
constexpr int starSize = 12;
constexpr int endPadding = 8;

} // namespace

void paintStarred(QPainter& painter, double size, const QRectF& rect, const Theme& theme) {
    constexpr double edge = 1;
    paintSymbol(painter, Symbol::StarFill, {size, edge}, rect, theme.star);
    paintSymbol(painter, Symbol::Star, {size, edge}, rect, theme.starBorder);
}

StarredFilter::StarredFilter(QWidget* parent) : QWidget(parent), m_box(new CheckBox({}, this)) {
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    setCursor(Qt::ArrowCursor);
    setToolTip(tr("Show starred only"));
    m_box->setAccessibleName(toolTip());
    m_box->setToolTip(toolTip());
    connect(m_box, &CheckBox::toggled, this, [this](bool on) {
        update();
        Q_EMIT switched(on);
    });
}

bool StarredFilter::isOn() const {
    return m_box->isChecked();
}

QSize StarredFilter::sizeHint() const {
    return {boxTarget + starSize + endPadding, boxTarget};
}

void StarredFilter::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    const auto theme = Theme::of(palette());
    const auto star = placed({boxTarget, 0, starSize, height()});
    if (isOn())
        paintStarred(painter, starSize, star, theme);
    else
        paintSymbol(
            painter,
            Symbol::StarFill,
            {starSize, SymbolStyle::semibold},
            star,
            theme.secondaryText);
}

void StarredFilter::mousePressEvent(QMouseEvent* event) {
    // Kept from the text field below, and so that the release comes here as well.
    event->accept();
}

void StarredFilter::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton && rect().contains(event->position().toPoint()))
        m_box->click();
}

void StarredFilter::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    layOut();
}

void StarredFilter::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::LayoutDirectionChange)
        layOut();
}

QRect StarredFilter::placed(QRect place) const {
    return QStyle::visualRect(layoutDirection(), rect(), place);
}

void StarredFilter::layOut() {
    m_box->setGeometry(placed({0, 0, boxTarget, height()}));
}

} // namespace quorvane
