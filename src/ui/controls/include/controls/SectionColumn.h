// SPDX-License-Identifier: MIT
#pragma once

#include <QScrollArea>

class QVBoxLayout;

namespace quorvane {

class ScrollingSection;

/// The sections of a window below each other. It asks for the height that they need. Where it gets
/// less, the section that can scrolls by itself; where that is not enough, that one has all its
/// height and the column scrolls. One scroll bar shows at most.
class SectionColumn final : public QScrollArea {
    Q_OBJECT

public:
    /// `margins` around all of them, `spacing` between two.
    SectionColumn(const QMargins& margins, int spacing, QWidget* parent);

    /// Takes the section; whatever height is left over goes to the sections that stretch.
    void add(QWidget* section, int stretch = 0);

    void addSpacing(int height);

    /// Takes the one section that scrolls by itself where there is too little height, and that gets
    /// what is left over where there is more. Both are the same object.
    void addScrolling(QWidget* section, ScrollingSection& scrolling);

    [[nodiscard]] bool hasHeightForWidth() const override { return true; }

    [[nodiscard]] int heightForWidth(int width) const override;
    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

    bool eventFilter(QObject* watched, QEvent* event) override;

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    void shareHeight();

    ScrollingSection* m_scrolling = nullptr;
    QVBoxLayout* m_sections;
};

} // namespace quorvane
