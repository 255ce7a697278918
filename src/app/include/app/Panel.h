// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

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

protected:
    bool event(QEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void moveEvent(QMoveEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    QWidget* m_content;
    int m_fittingHeight;
};

} // namespace quorvane
