// SPDX-License-Identifier: MIT
#pragma once

#include <controls/ChoiceWidget.h>

#include <vector>

namespace quorvane {

class SegmentButton;

/// Segments of equal width in one frame, at most one of them selected. One Tab stop; the arrows of
/// the keyboard, Home and End choose, in the direction that one sees.
class SegmentedRow : public ChoiceWidget {
    Q_OBJECT

public:
    explicit SegmentedRow(QWidget* parent = nullptr);

    [[nodiscard]] const QStringList& titles() const override { return m_titles; }

    [[nodiscard]] std::optional<int> selectedIndex() const override;
    using ChoiceWidget::setChoices;
    void setChoices(
        const QStringList& titles, std::optional<int> selected, const QString& unlisted) override;

    [[nodiscard]] QSize sizeHint() const override;

    [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }

    bool eventFilter(QObject* watched, QEvent* event) override;

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;

    /// Gives every segment an equal share of the width; without segments it does nothing.
    void distributeSegmentWidths();

private:
    void setSegmentCount(qsizetype count);
    void select(std::optional<int> index);
    void choose(int index);
    [[nodiscard]] std::optional<int> indexAfterKey(int key, int index) const;

    QStringList m_titles;
    std::vector<SegmentButton*> m_segments;
};

} // namespace quorvane
