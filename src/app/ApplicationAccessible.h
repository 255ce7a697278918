// SPDX-License-Identifier: MIT
#pragma once

#include <QAccessibleObject>

class QWidget;

namespace quorvane {

/// The program as assistive technology sees it, with the popover among its windows. Qt lists no
/// popup there; one that has no parent window could not be found at all.
class ApplicationAccessible final : public QAccessibleApplication {
public:
    /// Makes Qt use this class. Call it before the application object is made, which Qt may publish
    /// at once.
    static void install();

    [[nodiscard]] int childCount() const override;
    [[nodiscard]] QAccessibleInterface* child(int index) const override;
    [[nodiscard]] int indexOfChild(const QAccessibleInterface* child) const override;

private:
    [[nodiscard]] static QList<QWidget*> popovers();
};

} // namespace quorvane
