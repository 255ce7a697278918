// SPDX-License-Identifier: MIT
#pragma once

#include <controls/LineEdit.h>

namespace quorvane {

/// One line of text on a chip's surface; the frame shows the focus.
class TextField : public LineEdit {
    Q_OBJECT

public:
    explicit TextField(PasteReader reader, QWidget* parent = nullptr);

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
    void changeEvent(QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

    /// The room from the field's sides to the text, in points.
    void setPadding(int left, int right);

    /// What stands behind the text.
    virtual void paintSurface(QPainter& painter);

    /// The palette of the surrounding view; the field's own palette is adapted to its line of text.
    [[nodiscard]] const QPalette& surroundingPalette() const;

private:
    void adoptColors();
    void alignText();
    void centerText();

    bool m_adopting = false;
};

} // namespace quorvane
