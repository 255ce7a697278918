// SPDX-License-Identifier: MIT
#pragma once

#include <QLayout>

#include <memory>
#include <vector>

namespace quorvane {

/// A label and the control that it names: beside each other where the label fits on one line there,
/// else the control below the label. A control that expands takes what is left over, another one
/// keeps its width and stands at the end. Mirrored in a right-to-left widget.
class LabelledRow final : public QLayout {
    Q_OBJECT

public:
    LabelledRow(QWidget* label, QWidget* control);
    ~LabelledRow() override;

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
    /// Where label and control stand in a rectangle of that width at the origin, left to right.
    struct Places {
        QRect label;
        QRect control;
    };

    [[nodiscard]] Places places(int width) const;
    [[nodiscard]] Places beside(int width) const;
    [[nodiscard]] Places below(int width) const;

    [[nodiscard]] const QLayoutItem& label() const { return *m_items.front(); }

    [[nodiscard]] const QLayoutItem& control() const { return *m_items.back(); }

    std::vector<std::unique_ptr<QLayoutItem>> m_items; ///< the label and the control
};

} // namespace quorvane
