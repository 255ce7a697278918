// SPDX-License-Identifier: MIT
#include "VectorKinds.h"

#include <controls/FlowLayout.h>

#include <cmath>

namespace quorvane {

namespace {

std::vector<double> numbers(const QJsonValue& value, int count) {
    const auto array = value.toArray();
    if (array.size() != count)
        throw MalformedRow("a list of numbers has another length");
    std::vector<double> result;
    for (const auto element : array) {
        if (!element.isDouble())
            throw MalformedRow("a list of numbers holds something else");
        result.push_back(element.toDouble());
    }
    return result;
}

std::vector<QSizeF> children(const VectorRow& row) {
    std::vector<QSizeF> sizes;
    for (const auto child : row.array("children")) {
        const auto size = numbers(child, 2);
        sizes.emplace_back(size[0], size[1]);
    }
    return sizes;
}

std::optional<double> proposedWidth(const VectorRow& row) {
    return row.value("width").isNull() ? std::nullopt : std::optional(row.number("width"));
}

/// JSON has no infinity: null stands for it.
QJsonValue finiteOrNull(double number) {
    return std::isinf(number) ? QJsonValue() : QJsonValue(number);
}

} // namespace

Comparison checkFlow(const VectorRow& row) {
    const auto sizes = children(row);
    const double spacing = row.number("spacing");
    const auto size = FlowLayout::sizeThatFits(proposedWidth(row), sizes, spacing);
    const auto bounds = numbers(row.value("bounds"), 4);
    const QRectF rect(bounds[0], bounds[1], bounds[2], bounds[3]);
    QJsonArray positions;
    for (const auto& place : FlowLayout::placeSubviews(rect, sizes, spacing))
        positions.append(QJsonArray{place.x(), place.y()});
    return {
        QJsonArray{row.array("size"), row.array("positions")},
        QJsonArray{QJsonArray{finiteOrNull(size.width()), size.height()}, positions}};
}

} // namespace quorvane
