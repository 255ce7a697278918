// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QString>

class QWidget;

namespace quorvane {

/// What has texts read by a screen reader, wherever the focus is; one for each window. Before
/// Qt 6.8, which has an event for announcements, it is itself what is read: a notification that
/// assistive technology perceives and that is not on the screen.
class Announcer final : public QObject {
    Q_OBJECT

public:
    /// That of a widget's window, or for what a window has opened, of that window: a popover may be
    /// gone before its text is read. Made when it is first asked for.
    [[nodiscard]] static Announcer& of(const QWidget& widget);

    /// Has the text read, also if it is the one before.
    void say(const QString& text);

    /// What was said last.
    [[nodiscard]] const QString& text() const { return m_text; }

Q_SIGNALS:
    void said(const QString& text);

private:
    explicit Announcer(QWidget& window);

    QString m_text;
};

} // namespace quorvane
