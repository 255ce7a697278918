// SPDX-License-Identifier: MIT
#include <QLoggingCategory>

#include <algorithm>
#include <array>
#include <backends/QtPlatformChoice.h>
#include <string_view>
#include <utility>

namespace quorvane {

using namespace Qt::StringLiterals;

namespace {

Q_LOGGING_CATEGORY(lcBackend, "quorvane.backend", QtFatalMsg)

constexpr auto variable = "QT_QPA_PLATFORM";

constexpr std::array<std::string_view, 4> ofItsOwn{
    "ext_data_control_manager_v1",
    "zwlr_data_control_manager_v1",
    "zwp_virtual_keyboard_manager_v1",
    "zwlr_layer_shell_v1",
};

// KWin has services of its own, whatever Qt runs on; but a place, the state above others and all
// virtual desktops together are had by windows of X11 alone, unless the program is installed.
constexpr std::string_view kwinsShell = "org_kde_plasma_shell";

QtPlatform choose(bool hasX11, const QString& usersChoice, const Compositor& compositor) {
    const bool isUsers = !usersChoice.isEmpty();
    if (compositor.answer() == Compositor::Answer::Silent) {
        if (isUsers)
            return usersChoice.startsWith("wayland"_L1) ? QtPlatform::None : QtPlatform::Qts;
        return hasX11 ? QtPlatform::X11 : QtPlatform::None;
    }
    const bool isPoor = std::ranges::none_of(
        ofItsOwn, [&](std::string_view name) { return compositor.offers(name); });
    const bool hasBoth = hasX11 && compositor.answer() == Compositor::Answer::Offers;
    const bool isBetterOff = isPoor || compositor.offers(kwinsShell);
    return !isUsers && hasBoth && isBetterOff ? QtPlatform::X11 : QtPlatform::Qts;
}

const char* nameOf(QtPlatform platform) {
    switch (platform) {
    case QtPlatform::Qts:
        return "Qt's own choice, or the user's";
    case QtPlatform::X11:
        return "X11, the compositor offers windows of Wayland less";
    case QtPlatform::None:
        break;
    }
    return "none, the compositor does not answer";
}

} // namespace

QtPlatform chooseQtPlatform(const Environment& environment, const Compositor& compositor) {
    const bool hasX11 = !environment("DISPLAY").value_or(QString()).isEmpty();
    const auto platform = choose(hasX11, environment(variable).value_or(QString()), compositor);
    qCInfo(lcBackend, "platform: %s", nameOf(platform));
    return platform;
}

QtPlatformSetting::QtPlatformSetting(QtPlatform platform) : m_isSet(platform == QtPlatform::X11) {
    if (m_isSet)
        qputenv(variable, "xcb");
}

void QtPlatformSetting::settle() {
    if (std::exchange(m_isSet, false))
        qunsetenv(variable);
}

} // namespace quorvane
