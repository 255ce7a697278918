// SPDX-License-Identifier: MIT
#pragma once

#include <controls/PressableControl.h>

namespace quorvane {

/// A framed button with a word or two, as wide as they are.
class PushButton final : public PressableControl {
    Q_OBJECT

public:
    explicit PushButton(const QString& label, QWidget* parent = nullptr);

    /// Shows another label; one that is shown already changes nothing.
    void setLabel(const QString& label);

    [[nodiscard]] QSize sizeHint() const override;

protected:
    [[nodiscard]] double cornerRadius() const override;
    void paintControl(QPainter& painter, const Theme& theme) override;
};

} // namespace quorvane
