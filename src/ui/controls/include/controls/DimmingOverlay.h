// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

namespace quorvane {

/// Shows a widget, with everything in it, at less than full opacity: the window's own background
/// colour, laid over it. Correct only on a plain background; it needs no layer of its own.
class DimmingOverlay final : public QWidget {
    Q_OBJECT

public:
    /// Over the whole of `dimmed`, whose child it becomes; off at first.
    explicit DimmingOverlay(QWidget* dimmed);

    /// The widget's opacity, 0 to 1; 1 hides the overlay.
    void setOpacity(double opacity);

    bool eventFilter(QObject* watched, QEvent* event) override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    double m_opacity = 1;
};

} // namespace quorvane
