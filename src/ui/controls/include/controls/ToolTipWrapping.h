// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QString>

class QFont;

namespace quorvane {

/// A tooltip's text with line breaks between words, so that no line is longer than the panel's
/// column is wide. Lines that the text has stay lines.
[[nodiscard]] QString wrappedToolTip(const QString& text, const QFont& font);

/// Breaks the tooltips of all widgets into lines for as long as it lives: Qt shows a plain text on
/// one line, however long.
class ToolTipWrapping final : public QObject {
    Q_OBJECT

public:
    ToolTipWrapping();

    bool eventFilter(QObject* watched, QEvent* event) override;
};

} // namespace quorvane
