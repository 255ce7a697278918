// SPDX-License-Identifier: MIT
#pragma once

#include "EntryFixture.h"
#include "TimePickerPopover.h"

#include <controls/Theme.h>
#include <entry/TimeField.h>

namespace quorvane {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

// Midnight of 2024-03-09 in New York, which is 05:00Z.
inline constexpr Instant midnight{1709960400};

/// The time chip of a window, and what stands in its popover.
class TimePickerFixture : public EntryFixture {
protected:
    TimeField chip{binding(), {}, dependencies(), &window};

    TimePickerFixture() { chip.setGeometry(20, 20, 120, 30); }

    void openOn(Seconds timeOfDay) {
        date = midnight + timeOfDay;
        showWindow();
        chip.click();
    }

    QLineEdit& hour() { return find<QLineEdit>(QAccessible::SpinBox, u"Hour"_s); }

    QLineEdit& minute() { return find<QLineEdit>(QAccessible::SpinBox, u"Minute"_s); }

    QAbstractButton& period(const QString& name) {
        return find<QAbstractButton>(QAccessible::RadioButton, name);
    }

    static void type(const QString& text) {
        QTest::keyClicks(QApplication::activePopupWidget()->focusWidget(), text);
    }

    /// Whether its frame says that the text is not taken.
    static bool isRefused(QWidget& field) {
        const auto image = field.grab().toImage();
        return image.pixel(image.width() / 2, 0) ==
               Theme::of(field.parentWidget()->palette()).danger.rgb();
    }

    static QString descriptionOf(QWidget& field) {
        return QAccessible::queryAccessibleInterface(&field)->text(QAccessible::Description);
    }

    bool isPM() { return period(u"PM"_s).isChecked(); }

    Seconds timeOfDay() const { return Seconds(date.secondsSince1970 - midnight.secondsSince1970); }
};

} // namespace quorvane
