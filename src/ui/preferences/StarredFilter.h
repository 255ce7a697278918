// SPDX-License-Identifier: MIT
#pragma once

#include <controls/SymbolPainter.h>
#include <controls/Theme.h>

#include <QWidget>

namespace quorvane {

class CheckBox;

/// A favourite's star: yellow with a darker edge.
void paintStarred(QPainter& painter, double size, const QRectF& rect, const Theme& theme);

/// A checkbox that a star stands for, at the end of the search field: favourites only.
class StarredFilter final : public QWidget {
    Q_OBJECT

public:
    /// What the search field has to keep free for it.
    static constexpr int room = 40;

    explicit StarredFilter(QWidget* parent);

    [[nodiscard]] bool isOn() const;

    [[nodiscard]] QSize sizeHint() const override;

Q_SIGNALS:
    void switched(bool on);

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    [[nodiscard]] QRect placed(QRect place) const;
    void layOut();

    CheckBox* m_box;
};

} // namespace quorvane
