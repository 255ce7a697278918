// SPDX-License-Identifier: MIT
#pragma once

#include <controls/TextField.h>

namespace quorvane {

class IconButton;

/// A text field to search with: without a frame, with a lens before the text and a button that
/// clears it.
class SearchField final : public TextField {
    Q_OBJECT

public:
    static constexpr int fieldHeight = 32;

    SearchField(const QString& prompt, PasteReader reader, QWidget* parent = nullptr);

    [[nodiscard]] QSize sizeHint() const override;

    [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }

    /// Keeps that many points free at the end, for what another widget shows there.
    void setTrailingRoom(int points);

    /// Writes what the key writes, as if the field had been typed into.
    void typeKey(QKeyEvent* event) { keyPressEvent(event); }

    bool event(QEvent* event) override;

protected:
    void paintSurface(QPainter& painter) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void adoptLayout();

    IconButton* m_clear;
    int m_trailingRoom = 0;
};

} // namespace quorvane
