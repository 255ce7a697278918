// SPDX-License-Identifier: MIT
#include <platform_qt/QtStartupNotification.h>

namespace quorvane {

namespace {

constexpr auto variable = "XDG_ACTIVATION_TOKEN";

} // namespace

void QtStartupNotification::begin(const ActivationToken& token) {
    // Launchers that are older than the protocol's own key hand its token on in that of X11.
    const auto& known = token.token.isEmpty() ? token.startupId : token.token;
    if (!known.isEmpty())
        qputenv(variable, known.toUtf8());
}

void QtStartupNotification::end() {
    // One that no window has used would reach the programs that this one starts.
    qunsetenv(variable);
}

} // namespace quorvane
