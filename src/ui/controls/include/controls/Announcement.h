// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

class QWidget;

namespace quorvane {

/// Has a screen reader say a text once, when it has finished what it is saying; where none listens,
/// nothing happens. For what one sees change away from the focus: a screen reader reads the focus
/// by itself. `speaker` is what the text is about; it need not be visible. An empty text is none.
void announce(QWidget& speaker, const QString& text);

} // namespace quorvane
