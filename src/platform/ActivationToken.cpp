// SPDX-License-Identifier: MIT
#include <platform/ActivationToken.h>

#include <algorithm>
#include <array>

namespace quorvane {

namespace {

constexpr auto tokenVariable = "XDG_ACTIVATION_TOKEN";
constexpr auto startupIdVariable = "DESKTOP_STARTUP_ID";

// Desktops make them of names, numbers and times; the longest hold a host's name and a path.
constexpr qsizetype longest = 1024;

QString trusted(const QString& text) {
    const bool isPlain =
        std::ranges::all_of(text, [](QChar character) { return character.isPrint(); });
    return isPlain && text.size() <= longest ? text : QString();
}

} // namespace

ActivationToken activationTokenOf(const QString& token, const QString& startupId) {
    return {trusted(token), trusted(startupId)};
}

ActivationToken takeActivationTokenOfProcess() {
    auto taken = activationTokenOf(
        qEnvironmentVariable(tokenVariable), qEnvironmentVariable(startupIdVariable));
    for (const auto* variable : std::array{tokenVariable, startupIdVariable})
        qunsetenv(variable);
    return taken;
}

} // namespace quorvane
