// SPDX-License-Identifier: MIT
#pragma once

#include <controls/PopoverSurface.h>

#include <QPoint>
#include <QWidget>

#include <optional>

namespace quorvane {

/// The detached window: floats above others, has no frame, and is moved by its background.
class Panel final : public QWidget {
    Q_OBJECT

public:
    enum class Background { Composited, Plain };

    /// Takes ownership of the content, whose layout decides the height. Plain at first.
    explicit Panel(QWidget* content);

    /// Round corners and a shadow where windows are composited, else a plain rectangle. One that
    /// was shown plain has to be hidden to become the other.
    void setBackground(Background background);

    /// The surface that the user sees as the panel: the window without its shadow.
    [[nodiscard]] QRect frame() const;

    void setFrame(const QRect& frame);

    /// What the shadow takes of the window.
    [[nodiscard]] QMargins shadow() const { return m_surface.margins(); }

    /// What the content needs, in points.
    [[nodiscard]] int fittingHeight() const;

Q_SIGNALS:
    /// Its present state has been painted.
    void painted();

    /// The user or the window manager moved or sized the panel.
    void frameChanged();

    /// The height that the content needs has changed.
    void fittingHeightChanged();

    void pointerLeft();

    /// The user drags the background: the desktop is to move the panel with the pointer.
    void dragged();

protected:
    bool event(QEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void moveEvent(QMoveEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    QWidget* m_content;
    PopoverSurface m_surface;
    int m_fittingHeight;
    std::optional<QPoint> m_pressed; ///< where, on the screen; none once it has become a drag
};

} // namespace quorvane
