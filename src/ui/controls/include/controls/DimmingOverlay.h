// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

namespace quorvane {

struct Theme;

/// Shows a widget, with everything in it, at less than full opacity: the window's own background
/// colour, laid over it. Correct only on a plain background; it needs no layer of its own. In high
/// contrast it stays as readable as it must.
class DimmingOverlay final : public QWidget {
    Q_OBJECT

public:
    /// Over the whole of `dimmed`, whose child it becomes; off at first.
    explicit DimmingOverlay(QWidget* dimmed);

    /// The widget's opacity, 0 to 1; 1 hides the overlay.
    void setOpacity(double opacity);

    /// Whether a dashed frame tells in high contrast that the widget is dimmed: for one whose
    /// controls have no frames of their own.
    void setFramed(bool isFramed) { m_isFramed = isFramed; }

    bool eventFilter(QObject* watched, QEvent* event) override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void paintFrame(QPainter& painter, const Theme& theme) const;

    double m_opacity = 1;
    bool m_isFramed = false;
};

} // namespace quorvane
