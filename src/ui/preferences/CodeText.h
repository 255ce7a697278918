// SPDX-License-Identifier: MIT
#pragma once

#include <QLabel>

#include <memory>

class QTextLayout;

namespace quorvane {

/// A text for a machine, to be copied and not to be edited: in the desktop's fixed font, from left
/// to right in every language, broken wherever its room ends.
class CodeText final : public QLabel {
    Q_OBJECT

public:
    explicit CodeText(QWidget* parent);

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;
    [[nodiscard]] int heightForWidth(int width) const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    [[nodiscard]] QFont textFont() const;
    [[nodiscard]] std::unique_ptr<QTextLayout> lines(int width) const;
};

} // namespace quorvane
