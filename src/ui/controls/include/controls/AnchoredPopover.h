// SPDX-License-Identifier: MIT
#pragma once

#include <controls/PopoverEffects.h>
#include <controls/PopoverPlacement.h>
#include <controls/PopoverSurface.h>

#include <QPointer>
#include <QWidget>

#include <memory>

namespace quorvane {

class ComposedInPopover;

/// A small surface that stands at a control for as long as the user works in it. Escape, a press
/// outside, and whatever hides its anchor's window close it; a press on the anchor itself closes it
/// and is not passed on, so that the anchor does not open it again. On closing the focus goes back
/// to the anchor. Create a new one each time; it deletes itself on close.
class AnchoredPopover final : public QWidget {
    Q_OBJECT

public:
    /// Takes `content`, which is shown at its own size and gets the focus where it asks for it.
    AnchoredPopover(QWidget* anchor, QWidget* content, const PopoverEffects& effects);

    void setAlignment(PopoverAlignment alignment) { m_alignment = alignment; }

    /// Shows it at its anchor, on the anchor's screen.
    void open();

    ~AnchoredPopover() override;

    AnchoredPopover(const AnchoredPopover&) = delete;
    AnchoredPopover& operator=(const AnchoredPopover&) = delete;

    [[nodiscard]] QWidget* content() const { return m_content; }

    bool eventFilter(QObject* watched, QEvent* event) override;

Q_SIGNALS:
    void closed();

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

private:
    [[nodiscard]] QRect surface() const;
    [[nodiscard]] QRect anchorRect() const;
    void place();
    void giveFocusBack();

    QPointer<QWidget> m_anchor;
    QWidget* m_content;
    std::unique_ptr<ComposedInPopover> m_composed; ///< while it is open
    PopoverSurface m_surface;
    PopoverAlignment m_alignment = PopoverAlignment::LeftEdges;
};

} // namespace quorvane
