// SPDX-License-Identifier: MIT
#pragma once

#include <controls/PressableControl.h>
#include <controls/Symbol.h>

namespace quorvane {

/// One of the large buttons that end a task: a symbol and a label.
class ActionButton : public PressableControl {
    Q_OBJECT

public:
    enum class Prominence { Bordered, Prominent };

    ActionButton(
        Prominence prominence, Symbol symbol, const QString& label, QWidget* parent = nullptr);

    /// Shows another symbol and label.
    void setFace(Symbol symbol, const QString& label);

    [[nodiscard]] QSize sizeHint() const override;

protected:
    [[nodiscard]] double cornerRadius() const override;
    void paintControl(QPainter& painter, const Theme& theme) override;

    /// The ink of symbol and label, for one that differs from what the prominence gives.
    [[nodiscard]] virtual std::optional<QColor> tint(const Theme& theme) const;

private:
    [[nodiscard]] QFont labelFont() const;
    void paintSurface(QPainter& painter, const Theme& theme) const;

    Prominence m_prominence;
    Symbol m_symbol;
};

} // namespace quorvane
