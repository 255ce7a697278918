// SPDX-License-Identifier: MIT
#include <controls/FlowLayout.h>

#include <QWidget>

#include <algorithm>
#include <cmath>
#include <limits>

namespace quorvane {

FlowLayout::FlowLayout(int spacing, QWidget* parent) : QLayout(parent) {
    setSpacing(spacing);
    setContentsMargins(0, 0, 0, 0);
}

FlowLayout::~FlowLayout() = default;

QSizeF FlowLayout::sizeThatFits(
    std::optional<double> proposedWidth, const std::vector<QSizeF>& children, double spacing) {
    const double maxWidth = proposedWidth.value_or(std::numeric_limits<double>::infinity());
    double x = 0;
    double y = 0;
    double lineHeight = 0;
    for (const auto& child : children) {
        if (x > 0 && x + child.width() > maxWidth) {
            y += lineHeight + spacing;
            x = 0;
            lineHeight = 0;
        }
        x += child.width() + spacing;
        lineHeight = std::max(lineHeight, child.height());
    }
    return {maxWidth, y + lineHeight};
}

std::vector<QPointF> FlowLayout::placeSubviews(
    const QRectF& bounds, const std::vector<QSizeF>& children, double spacing) {
    const double maxX = bounds.x() + bounds.width();
    double x = bounds.x();
    double y = bounds.y();
    double lineHeight = 0;
    std::vector<QPointF> places;
    for (const auto& child : children) {
        if (x + child.width() > maxX && x > bounds.x()) {
            y += lineHeight + spacing;
            x = bounds.x();
            lineHeight = 0;
        }
        places.emplace_back(x, y);
        x += child.width() + spacing;
        lineHeight = std::max(lineHeight, child.height());
    }
    return places;
}

void FlowLayout::addItem(QLayoutItem* item) {
    m_items.emplace_back(item);
    invalidate();
}

int FlowLayout::count() const {
    return static_cast<int>(m_items.size());
}

QLayoutItem* FlowLayout::itemAt(int index) const {
    return index >= 0 && index < count() ? m_items[static_cast<std::size_t>(index)].get() : nullptr;
}

QLayoutItem* FlowLayout::takeAt(int index) {
    if (itemAt(index) == nullptr)
        return nullptr;
    const auto position = m_items.begin() + index;
    auto* item = position->release();
    m_items.erase(position);
    invalidate();
    return item;
}

int FlowLayout::heightForWidth(int width) const {
    return static_cast<int>(std::ceil(sizeThatFits(width, childSizes(), spacing()).height()));
}

QSize FlowLayout::minimumSize() const {
    QSize least;
    for (const auto& item : m_items)
        least = least.expandedTo(item->minimumSize());
    return least;
}

QSize FlowLayout::sizeHint() const {
    double width = 0;
    for (const auto& child : childSizes())
        width += child.width() + (width > 0 ? spacing() : 0);
    return {static_cast<int>(width), heightForWidth(static_cast<int>(width))};
}

void FlowLayout::setGeometry(const QRect& rect) {
    QLayout::setGeometry(rect);
    const bool mirrored =
        parentWidget() != nullptr && parentWidget()->layoutDirection() == Qt::RightToLeft;
    const auto sizes = childSizes();
    const auto places = placeSubviews(rect, sizes, spacing());
    for (std::size_t index = 0, child = 0; index < m_items.size(); ++index) {
        if (m_items[index]->isEmpty())
            continue;
        QRect place(places[child].toPoint(), sizes[child].toSize());
        if (mirrored)
            place.moveRight(rect.left() + rect.right() - place.left());
        m_items[index]->setGeometry(place);
        ++child;
    }
}

std::vector<QSizeF> FlowLayout::childSizes() const {
    std::vector<QSizeF> sizes;
    for (const auto& item : m_items) {
        if (!item->isEmpty())
            sizes.emplace_back(item->sizeHint());
    }
    return sizes;
}

} // namespace quorvane
