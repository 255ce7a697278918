// SPDX-License-Identifier: MIT
#pragma once

#include <QPoint>
#include <QWidget>

#include <optional>

namespace quorvane {

/// The detached window: floats above others, has no frame, and is moved by its background.
class Panel final : public QWidget {
    Q_OBJECT

public:
    /// Takes ownership of the content, whose layout decides the height.
    explicit Panel(QWidget* content);

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
    int m_fittingHeight;
    std::optional<QPoint> m_pressed; ///< where, on the screen; none once it has become a drag
};

} // namespace quorvane
