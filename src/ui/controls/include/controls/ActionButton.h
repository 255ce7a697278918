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

    [[nodiscard]] QSize sizeHint() const override;

protected:
    [[nodiscard]] double cornerRadius() const override;

    /// What stands in the middle of the button.
    struct Face {
        Symbol symbol;
        QString label;
        QColor symbolColor;
        QColor labelColor;
    };

    void paintControl(QPainter& painter, const Theme& theme) final;

    /// Paints what stands on the surface.
    virtual void paintFace(QPainter& painter, const Theme& theme);

    void paint(QPainter& painter, const Face& face) const;

private:
    [[nodiscard]] QFont labelFont() const;
    [[nodiscard]] bool isFilled(const Theme& theme) const;
    void paintSurface(QPainter& painter, const Theme& theme) const;

    Prominence m_prominence;
    Symbol m_symbol;
};

} // namespace quorvane
