// SPDX-License-Identifier: MIT
#include "LabelledRow.h"

#include <QStyle>
#include <QWidget>

#include <algorithm>

namespace quorvane {

namespace {

constexpr int gapBeside = 12;
constexpr int gapBelow = 4;

int heightOf(const QLayoutItem& item, int width) {
    return item.hasHeightForWidth() ? item.heightForWidth(width) : item.sizeHint().height();
}

bool expands(const QLayoutItem& item) {
    return item.expandingDirections().testFlag(Qt::Horizontal);
}

} // namespace

LabelledRow::LabelledRow(QWidget* label, QWidget* control) {
    addWidget(label);
    addWidget(control);
}

LabelledRow::~LabelledRow() = default;

void LabelledRow::addItem(QLayoutItem* item) {
    m_items.emplace_back(item);
}

int LabelledRow::count() const {
    return static_cast<int>(m_items.size());
}

QLayoutItem* LabelledRow::itemAt(int index) const {
    return index >= 0 && index < count() ? m_items[static_cast<std::size_t>(index)].get() : nullptr;
}

QLayoutItem* LabelledRow::takeAt(int index) {
    if (itemAt(index) == nullptr)
        return nullptr;
    const auto place = m_items.begin() + index;
    auto* item = place->release();
    m_items.erase(place);
    return item;
}

int LabelledRow::heightForWidth(int width) const {
    const auto [label, control] = places(width);
    return std::max(label.bottom(), control.bottom()) + 1;
}

QSize LabelledRow::minimumSize() const {
    const auto narrowest = label().minimumSize().expandedTo(control().minimumSize());
    return {narrowest.width(), std::max(label().minimumSize().height(), narrowest.height())};
}

QSize LabelledRow::sizeHint() const {
    const int control = this->control().sizeHint().width();
    const int width = label().sizeHint().width() + gapBeside + control;
    return {width, heightForWidth(width)};
}

void LabelledRow::setGeometry(const QRect& rect) {
    QLayout::setGeometry(rect);
    const auto places = this->places(rect.width());
    const auto direction = parentWidget()->layoutDirection();
    const auto place = [&](QLayoutItem& item, const QRect& where) {
        item.setGeometry(QStyle::visualRect(direction, rect, where.translated(rect.topLeft())));
    };
    place(*m_items.front(), places.label);
    place(*m_items.back(), places.control);
}

LabelledRow::Places LabelledRow::places(int width) const {
    if (control().isEmpty())
        return {{0, 0, width, heightOf(label(), width)}, {}};
    const int least = control().minimumSize().width();
    const bool fits = label().sizeHint().width() + gapBeside + least <= width;
    return fits ? beside(width) : below(width);
}

LabelledRow::Places LabelledRow::beside(int width) const {
    const int control = expands(this->control()) ? width - gapBeside - label().sizeHint().width()
                                                 : this->control().sizeHint().width();
    const int start = width - control;
    const QSize labelSize(start - gapBeside, heightOf(label(), start - gapBeside));
    const QSize controlSize(control, heightOf(this->control(), control));
    const int middle = std::max(labelSize.height(), controlSize.height());
    return {
        {{0, (middle - labelSize.height()) / 2}, labelSize},
        {{start, (middle - controlSize.height()) / 2}, controlSize}};
}

LabelledRow::Places LabelledRow::below(int width) const {
    const int labelHeight = heightOf(label(), width);
    const int control =
        expands(this->control()) ? width : std::min(width, this->control().sizeHint().width());
    return {
        {0, 0, width, labelHeight},
        {0, labelHeight + gapBelow, control, heightOf(this->control(), control)}};
}

} // namespace quorvane
