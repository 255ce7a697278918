// SPDX-License-Identifier: MIT
#pragma once

#include <QPlainTextEdit>

namespace quorvane {

/// The output as it will be delivered: selectable, never editable, as tall as its lines.
class OutputPreview final : public QPlainTextEdit {
    Q_OBJECT

public:
    explicit OutputPreview(QWidget* parent);

    void setOutput(const QString& output);

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

protected:
    void resizeEvent(QResizeEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    [[nodiscard]] int fittingHeight() const;
};

} // namespace quorvane
