// SPDX-License-Identifier: MIT
#include <platform_portal/RestoreToken.h>
#include <settings/SettingsTable.h>

namespace quorvane {

QString RestoreToken::current() const {
    return setting::typingToken.valueIn(m_defaults);
}

void RestoreToken::replace(const QString& token) {
    const auto kept = token.size() > greatestLength ? QString() : token;
    if (kept != current())
        setting::typingToken.store(m_defaults, kept);
}

} // namespace quorvane
