// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

namespace quorvane {

/// The detached window: floats above others, has no chrome, and moves by its background.
class Panel final : public QWidget {
    Q_OBJECT

public:
    /// Takes over the content, whose layout decides the height.
    explicit Panel(QWidget* content);

    /// What the content needs, in points.
    [[nodiscard]] int fittingHeight() const;

Q_SIGNALS:
    /// The panel is on the screen as it is now.
    void painted();

    /// The user or the window manager moved or sized the panel.
    void frameChanged();

    /// The content needs another height than before.
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
