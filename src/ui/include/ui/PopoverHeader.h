// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

#include <functional>

class QHBoxLayout;

namespace quorvane {

/// The panel's title row: the program, its shortcut, and the way out.
class PopoverHeader final : public QWidget {
    Q_OBJECT

public:
    PopoverHeader(std::function<void()> onClose, QWidget* parent);

    /// One cap for each label, in order.
    void setKeys(const QStringList& labels);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QHBoxLayout* m_caps;
    QStringList m_keys;
};

} // namespace quorvane
