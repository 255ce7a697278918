// SPDX-License-Identifier: MIT
#pragma once

#include <controls/PressableControl.h>
#include <controls/SymbolPainter.h>

namespace quorvane {

/// A button that shows a symbol only. Its name, which is its tooltip as well, says what it does.
/// One that has something open is shown as pressed.
class IconButton : public PressableControl {
    Q_OBJECT

public:
    enum class Kind {
        Header,  ///< 28 x 28
        Section, ///< 24 x 24
        Framed,  ///< 26 x 26, at the end of a frame that is 32 high
        Close    ///< 28 x 28, red while the pointer is over it
    };

    IconButton(Kind kind, Symbol symbol, const QString& name, QWidget* parent = nullptr);

    /// Shows another symbol, and says by another name what a press does now.
    void setFace(Symbol symbol, const QString& name);

    [[nodiscard]] QSize sizeHint() const override;

protected:
    [[nodiscard]] double cornerRadius() const override;
    void paintControl(QPainter& painter, const Theme& theme) override;

private:
    Kind m_kind;
    Symbol m_symbol;
};

} // namespace quorvane
