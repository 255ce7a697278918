// SPDX-License-Identifier: MIT
#include <testing/CapturedLog.h>

namespace quorvane {

CapturedLog::CapturedLog(const QString& category)
    : m_category(category),
      m_before(qInstallMessageHandler(take)) {
    current = this;
    QLoggingCategory::setFilterRules(
        category + QStringLiteral(".debug=true\n") + category + QStringLiteral(".info=true"));
}

CapturedLog::~CapturedLog() {
    QLoggingCategory::setFilterRules({});
    qInstallMessageHandler(m_before);
    current = nullptr;
}

// A message handler is a plain function.
void CapturedLog::take(QtMsgType type, const QMessageLogContext& context, const QString& message) {
    if (QLatin1StringView(context.category) == current->m_category)
        current->m_lines.append(message);
    else
        current->m_before(type, context, message);
}

} // namespace quorvane
