// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

namespace quorvane {

/// A line between two sections.
class Divider final : public QWidget {
    Q_OBJECT

public:
    explicit Divider(QWidget* parent);

protected:
    void paintEvent(QPaintEvent* event) override;
};

} // namespace quorvane
