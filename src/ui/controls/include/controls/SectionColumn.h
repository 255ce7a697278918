// SPDX-License-Identifier: MIT
#pragma once

#include <QScrollArea>

class QVBoxLayout;

namespace quorvane {

/// The sections of a window below each other. It asks for the height that they need; where it gets less, it
/// scrolls.
class SectionColumn final : public QScrollArea {
    Q_OBJECT

public:
    /// `margins` around all of them, `spacing` between two.
    SectionColumn(const QMargins& margins, int spacing, QWidget* parent);

    /// Takes the section; whatever height is left over goes to the sections that stretch.
    void add(QWidget* section, int stretch = 0);

    void addSpacing(int height);

    [[nodiscard]] bool hasHeightForWidth() const override { return true; }

    [[nodiscard]] int heightForWidth(int width) const override;
    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QVBoxLayout* m_sections;
};

} // namespace quorvane
