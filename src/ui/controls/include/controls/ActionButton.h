// SPDX-License-Identifier: MIT
#pragma once

#include <controls/PressableControl.h>
#include <controls/Symbol.h>

namespace quorvane {

/// One of the large buttons that end a task: a symbol and a label.
class ActionButton final : public PressableControl {
    Q_OBJECT

public:
    enum class Prominence { Bordered, Prominent };

    ActionButton(
        Prominence prominence, Symbol symbol, const QString& label, QWidget* parent = nullptr);

    [[nodiscard]] QSize sizeHint() const override;

protected:
    [[nodiscard]] double cornerRadius() const override;
    void paintControl(QPainter& painter, const Theme& theme) override;

private:
    [[nodiscard]] QFont labelFont() const;
    void paintSurface(QPainter& painter, const Theme& theme) const;

    Prominence m_prominence;
    Symbol m_symbol;
};

} // namespace quorvane
