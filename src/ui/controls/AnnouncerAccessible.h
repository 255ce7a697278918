// SPDX-License-Identifier: MIT
#pragma once

#include <QAccessibleObject>

class QWidget;

namespace quorvane {

class Announcer;

/// An announcer as assistive technology sees it: a notification without a place on the screen.
class AnnouncerAccessible final : public QAccessibleObject {
public:
    /// Both must outlive this.
    AnnouncerAccessible(Announcer& announcer, QWidget& window);

    [[nodiscard]] QAccessibleInterface* parent() const override;

    [[nodiscard]] int childCount() const override { return 0; }

    [[nodiscard]] QAccessibleInterface* child(int index) const override;
    [[nodiscard]] int indexOfChild(const QAccessibleInterface* child) const override;
    [[nodiscard]] QString text(QAccessible::Text kind) const override;

    [[nodiscard]] QAccessible::Role role() const override { return QAccessible::Notification; }

    [[nodiscard]] QAccessible::State state() const override { return {}; }

private:
    const Announcer& m_announcer;
    QWidget& m_window;
};

} // namespace quorvane
