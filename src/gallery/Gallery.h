// SPDX-License-Identifier: MIT
#pragma once

#include <QScrollArea>

namespace quorvane {

/// One window with every control in every state, light and dark side by side.
class Gallery final : public QScrollArea {
    Q_OBJECT

public:
    explicit Gallery(QWidget* parent = nullptr);
};

} // namespace quorvane
