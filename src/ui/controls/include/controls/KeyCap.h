// SPDX-License-Identifier: MIT
#pragma once

#include <QLabel>

namespace quorvane {

/// One key of a shortcut, drawn as a small key. Its text is what is printed on the key; the arrows
/// "←", "↑", "→" and "↓" are drawn. Give it an accessible name where the label is none that one
/// would say.
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
