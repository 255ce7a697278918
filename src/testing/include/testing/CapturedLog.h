// SPDX-License-Identifier: MIT
#pragma once

#include <QLoggingCategory>
#include <QString>
#include <QStringList>

namespace quorvane {

/// Switches a category on down to debug level, and keeps what is logged while this lives. One at a
/// time.
class CapturedLog {
public:
    explicit CapturedLog(const QString& category);
    ~CapturedLog();

    CapturedLog(const CapturedLog&) = delete;
    CapturedLog& operator=(const CapturedLog&) = delete;

    [[nodiscard]] const QStringList& lines() const { return m_lines; }

private:
    static void take(QtMsgType type, const QMessageLogContext& context, const QString& message);

    static inline CapturedLog* current = nullptr;

    QString m_category;
    QStringList m_lines;
    QtMessageHandler m_before;
};

} // namespace quorvane
