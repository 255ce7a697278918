// SPDX-License-Identifier: MIT
#pragma once

#include <controls/TextField.h>

namespace quorvane {

/// The line above a calendar's days in which a date is typed. It is hidden until it is opened.
class DateLine final : public TextField {
    Q_OBJECT

public:
    DateLine(PasteReader reader, QWidget* parent);

    /// Shows it, empty, unless it is being typed in.
    void open();

    /// Empties and hides it.
    void close();

    [[nodiscard]] bool isOpen() const { return !isHidden(); }

    /// Shows that what was typed is not taken, with `valid` in its place. The next typing begins
    /// anew.
    void replaceRefused(const QString& valid, const QString& reason);

Q_SIGNALS:
    /// The focus has gone to something else in the calendar.
    void left();

protected:
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

private:
    bool m_isReplaced = false;
};

} // namespace quorvane
