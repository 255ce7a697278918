// SPDX-License-Identifier: MIT
#pragma once

#include <QLabel>

namespace quorvane {

/// One key of a shortcut, drawn as a small key. Its text is the key's label, a modifier's glyph or
/// a key's name; give it an accessible name where the label is a glyph.
class KeyCap final : public QLabel {
    Q_OBJECT

public:
    explicit KeyCap(const QString& label, QWidget* parent = nullptr);

    [[nodiscard]] QSize sizeHint() const override;

    [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paintEvent(QPaintEvent* event) override;
};

} // namespace quorvane
