// SPDX-License-Identifier: MIT
#pragma once

#include <QAccessibleWidget>

namespace quorvane {

class NumberField;

/// A number field as assistive technology sees it: a number in its range that arrows step, and a
/// text that one edits. Qt's own class for line edits knows the text alone.
class NumberFieldAccessible final : public QAccessibleWidget,
                                    public QAccessibleValueInterface,
                                    public QAccessibleTextInterface,
                                    public QAccessibleEditableTextInterface {
public:
    explicit NumberFieldAccessible(NumberField& field);

    /// Makes Qt use this class; any number of calls.
    static void install();

    void* interface_cast(QAccessible::InterfaceType type) override;
    [[nodiscard]] QAccessible::State state() const override;
    [[nodiscard]] QString text(QAccessible::Text kind) const override;

    [[nodiscard]] QVariant currentValue() const override;
    void setCurrentValue(const QVariant& value) override;
    [[nodiscard]] QVariant minimumValue() const override;
    [[nodiscard]] QVariant maximumValue() const override;
    [[nodiscard]] QVariant minimumStepSize() const override;

    void selection(int number, int* start, int* end) const override;
    [[nodiscard]] int selectionCount() const override;
    void addSelection(int start, int end) override;
    void removeSelection(int number) override;
    void setSelection(int number, int start, int end) override;
    [[nodiscard]] int cursorPosition() const override;
    void setCursorPosition(int position) override;
    [[nodiscard]] QString text(int start, int end) const override;
    [[nodiscard]] int characterCount() const override;
    [[nodiscard]] QRect characterRect(int offset) const override;
    [[nodiscard]] int offsetAtPoint(const QPoint& point) const override;
    void scrollToSubstring(int start, int end) override;
    QString attributes(int offset, int* start, int* end) const override;

    void deleteText(int start, int end) override;
    void insertText(int offset, const QString& text) override;
    void replaceText(int start, int end, const QString& text) override;

private:
    NumberField& m_field;
};

} // namespace quorvane
