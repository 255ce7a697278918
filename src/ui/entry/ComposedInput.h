// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>

class QInputMethodEvent;
class QInputMethodQueryEvent;
class QLineEdit;

namespace quorvane {

/// Lets an input method write into a line of text while the keyboard's focus is on other widgets:
/// filters their events, which must have Qt::WA_InputMethodEnabled.
class ComposedInput final : public QObject {
    Q_OBJECT

public:
    /// `line` must outlive it.
    explicit ComposedInput(QLineEdit& line);

    bool eventFilter(QObject* watched, QEvent* event) override;

Q_SIGNALS:
    /// A text is about to come into the line.
    void begun();

    /// What was composed is in the line; nothing is being composed.
    void committed();

private:
    void pass(QInputMethodEvent& event);
    void answer(QInputMethodQueryEvent& event, const QWidget& focused);

    QLineEdit& m_line;
};

} // namespace quorvane
