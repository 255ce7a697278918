// SPDX-License-Identifier: MIT
#pragma once

#include <QLayout>
#include <QRectF>

#include <memory>
#include <optional>
#include <vector>

namespace quorvane {

/// Lays its items out from the leading edge and starts a new row where the next one would cross the
/// other edge. Rows are aligned at their tops; items keep their own size, and one that is wider
/// than the layout stands alone in its row. In a right-to-left widget it is mirrored.
class FlowLayout final : public QLayout {
    Q_OBJECT

public:
    /// `spacing` in points, between neighbours and between rows.
    explicit FlowLayout(int spacing, QWidget* parent = nullptr);
    ~FlowLayout() override;

    /// The size that children of these sizes take in a proposed width; none is unlimited. The width
    /// of the result is the proposal itself, infinite without one.
    [[nodiscard]] static QSizeF sizeThatFits(
        std::optional<double> proposedWidth, const std::vector<QSizeF>& children, double spacing);

    /// The upper left corner of each child, left to right within `bounds`.
    [[nodiscard]] static std::vector<QPointF>
    placeSubviews(const QRectF& bounds, const std::vector<QSizeF>& children, double spacing);

    void addItem(QLayoutItem* item) override;
    [[nodiscard]] int count() const override;
    [[nodiscard]] QLayoutItem* itemAt(int index) const override;
    QLayoutItem* takeAt(int index) override;

    [[nodiscard]] Qt::Orientations expandingDirections() const override { return Qt::Horizontal; }

    [[nodiscard]] bool hasHeightForWidth() const override { return true; }

    [[nodiscard]] int heightForWidth(int width) const override;
    [[nodiscard]] QSize minimumSize() const override;
    [[nodiscard]] QSize sizeHint() const override;
    void setGeometry(const QRect& rect) override;

private:
    [[nodiscard]] std::vector<QSizeF> childSizes() const;

    std::vector<std::unique_ptr<QLayoutItem>> m_items;
};

} // namespace quorvane
