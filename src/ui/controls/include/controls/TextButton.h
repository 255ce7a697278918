// SPDX-License-Identifier: MIT
#pragma once

#include <controls/PressableControl.h>

namespace quorvane {

/// A button that is a word in the accent's colour.
class TextButton final : public PressableControl {
    Q_OBJECT

public:
    /// On either side of the word.
    static constexpr int horizontalPadding = 8;

    explicit TextButton(const QString& label, QWidget* parent = nullptr);

    [[nodiscard]] QSize sizeHint() const override;

protected:
    [[nodiscard]] double cornerRadius() const override;
    void paintControl(QPainter& painter, const Theme& theme) override;
};

} // namespace quorvane
