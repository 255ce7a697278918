// SPDX-License-Identifier: MIT
#pragma once

#include <controls/TextStyle.h>

#include <QLabel>

#include <memory>

class QTextLayout;

namespace quorvane {

/// The height of a line of text in a style, for a widget whose font is `body`.
[[nodiscard]] int lineHeight(const QFont& body, TextStyle style);

/// A label in one of the text styles that breaks into lines where its room ends, and follows
/// the desktop's font while it is shown.
class WrappedText final : public QLabel {
    Q_OBJECT

public:
    enum class Color { Primary, Secondary };

    WrappedText(const QString& text, TextStyle style, Color color, QWidget* parent = nullptr);

    /// On one line.
    [[nodiscard]] QSize sizeHint() const override;
    /// No narrower than the longest word.
    [[nodiscard]] QSize minimumSizeHint() const override;
    [[nodiscard]] int heightForWidth(int width) const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    [[nodiscard]] std::unique_ptr<QTextLayout> lines(int width) const;

    TextStyle m_style;
    Color m_color;
};

} // namespace quorvane
