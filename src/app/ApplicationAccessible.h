// SPDX-License-Identifier: MIT
#pragma once

#include <QAccessibleObject>

class QWidget;

namespace quorvane {

/// The program as assistive technology sees it: with the popover among its windows. Qt leaves out
/// every popup, and one that belongs to no other window would then be nowhere to be found.
class ApplicationAccessible final : public QAccessibleApplication {
public:
    /// Makes Qt use this class; to be called before there is an application object, which Qt may
    /// publish at once.
    static void install();

    [[nodiscard]] int childCount() const override;
    [[nodiscard]] QAccessibleInterface* child(int index) const override;
    [[nodiscard]] int indexOfChild(const QAccessibleInterface* child) const override;

private:
    [[nodiscard]] static QList<QWidget*> popovers();
};

} // namespace quorvane
