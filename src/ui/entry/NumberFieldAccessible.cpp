// SPDX-License-Identifier: MIT
#include "NumberFieldAccessible.h"

#include "NumberField.h"

namespace quorvane {

namespace {

QAccessibleInterface* makeInterface(const QString& /*className*/, QObject* object) {
    auto* field = qobject_cast<NumberField*>(object);
    return field != nullptr ? new NumberFieldAccessible(*field) : nullptr;
}

} // namespace

NumberFieldAccessible::NumberFieldAccessible(NumberField& field)
    : QAccessibleWidget(&field, QAccessible::SpinBox),
      m_field(field) {
}

void NumberFieldAccessible::install() {
    // A factory that is already in the list is not added again.
    QAccessible::installFactory(makeInterface);
}

void* NumberFieldAccessible::interface_cast(QAccessible::InterfaceType type) {
    switch (type) {
    case QAccessible::ValueInterface:
        return static_cast<QAccessibleValueInterface*>(this);
    case QAccessible::TextInterface:
        return static_cast<QAccessibleTextInterface*>(this);
    case QAccessible::EditableTextInterface:
        return static_cast<QAccessibleEditableTextInterface*>(this);
    default:
        return QAccessibleWidget::interface_cast(type);
    }
}

QAccessible::State NumberFieldAccessible::state() const {
    auto state = QAccessibleWidget::state();
    state.editable = true;
    state.selectableText = true;
    return state;
}

QString NumberFieldAccessible::text(QAccessible::Text kind) const {
    return kind == QAccessible::Value ? m_field.text() : QAccessibleWidget::text(kind);
}

QVariant NumberFieldAccessible::currentValue() const {
    const auto number = m_field.number();
    return number ? QVariant(*number) : QVariant();
}

void NumberFieldAccessible::setCurrentValue(const QVariant& value) {
    m_field.setText(QString::number(value.toInt()));
}

QVariant NumberFieldAccessible::minimumValue() const {
    return m_field.range().least;
}

QVariant NumberFieldAccessible::maximumValue() const {
    return m_field.range().greatest;
}

QVariant NumberFieldAccessible::minimumStepSize() const {
    return 1;
}

void NumberFieldAccessible::selection(int number, int* start, int* end) const {
    const bool isThere = number == 0 && m_field.hasSelectedText();
    *start = isThere ? m_field.selectionStart() : 0;
    *end = isThere ? m_field.selectionEnd() : 0;
}

int NumberFieldAccessible::selectionCount() const {
    return m_field.hasSelectedText() ? 1 : 0;
}

void NumberFieldAccessible::addSelection(int start, int end) {
    setSelection(0, start, end);
}

void NumberFieldAccessible::removeSelection(int number) {
    if (number == 0)
        m_field.deselect();
}

void NumberFieldAccessible::setSelection(int number, int start, int end) {
    if (number == 0)
        m_field.setSelection(start, end - start);
}

int NumberFieldAccessible::cursorPosition() const {
    return m_field.cursorPosition();
}

void NumberFieldAccessible::setCursorPosition(int position) {
    m_field.setCursorPosition(position);
}

QString NumberFieldAccessible::text(int start, int end) const {
    return start < 0 ? QString() : m_field.text().mid(start, end - start);
}

int NumberFieldAccessible::characterCount() const {
    return static_cast<int>(m_field.text().size());
}

QRect NumberFieldAccessible::characterRect(int offset) const {
    const auto place = m_field.placeOfLetter(offset);
    return {m_field.mapToGlobal(place.topLeft()), place.size()};
}

int NumberFieldAccessible::offsetAtPoint(const QPoint& point) const {
    return m_field.cursorPositionAt(m_field.mapFromGlobal(point));
}

void NumberFieldAccessible::scrollToSubstring(int start, int /*end*/) {
    m_field.setCursorPosition(start);
}

QString NumberFieldAccessible::attributes(int /*offset*/, int* start, int* end) const {
    // One look for the whole text.
    *start = 0;
    *end = characterCount();
    return {};
}

void NumberFieldAccessible::deleteText(int start, int end) {
    replaceText(start, end, {});
}

void NumberFieldAccessible::insertText(int offset, const QString& text) {
    replaceText(offset, offset, text);
}

void NumberFieldAccessible::replaceText(int start, int end, const QString& text) {
    m_field.setSelection(start, end - start);
    m_field.insert(text);
}

} // namespace quorvane
