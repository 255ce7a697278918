// SPDX-License-Identifier: MIT
#pragma once

#include <QScrollBar>

class QAbstractScrollArea;

namespace quorvane {

/// A thin thumb that lies over the edge of a scroll area and takes no room from it. It shows while
/// there is something to scroll.
class OverlayScrollBar final : public QScrollBar {
    Q_OBJECT

public:
    /// Stands in for the area's own vertical bar, which is hidden.
    explicit OverlayScrollBar(QAbstractScrollArea* area);

    /// Keeps it from showing, also while there is something to scroll.
    void setSuppressed(bool suppressed);

    bool eventFilter(QObject* watched, QEvent* event) override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void follow();
    [[nodiscard]] QRectF thumb() const;

    QAbstractScrollArea* m_area;
    bool m_isSuppressed = false;
};

} // namespace quorvane
