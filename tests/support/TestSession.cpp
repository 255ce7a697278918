// SPDX-License-Identifier: MIT
#include <support/TestSession.h>

#include <QDir>
#include <QProcessEnvironment>

#include <algorithm>
#include <array>

namespace quorvane {

namespace {

// What may come from outside: how programs are found and what they report, not what they do.
constexpr std::array keptVariables{
    "PATH",
    "LD_LIBRARY_PATH",
    "TMPDIR",
    "TERM",
    "QT_LOGGING_RULES",
    "QUORVANE_GALLERY_FOLDER",
    "QUORVANE_THOROUGH",
    "ASAN_OPTIONS",
    "LSAN_OPTIONS",
    "TSAN_OPTIONS",
    "UBSAN_OPTIONS"};

bool isKept(const QString& variable) {
    return variable.startsWith(QLatin1StringView("GTEST_")) ||
           std::ranges::any_of(keptVariables, [&](const char* kept) {
               return variable == QLatin1StringView(kept);
           });
}

void dropInheritedVariables() {
    for (const auto& variable : QProcessEnvironment::systemEnvironment().keys()) {
        if (!isKept(variable))
            qunsetenv(variable.toLocal8Bit());
    }
}

/// What a run of the tests on purpose as on another machine has instead (./dev nightly).
QByteArray chosen(const char* variable, const char* usual) {
    const auto value = qgetenv(variable);
    return value.isEmpty() ? QByteArray(usual) : value;
}

} // namespace

TestSession::TestSession() {
    const auto locale = chosen("QUORVANE_TEST_LOCALE", "C.UTF-8");
    const auto zone = chosen("QUORVANE_TEST_ZONE", "UTC");
    dropInheritedVariables();
    makeFolder("HOME", "home");
    makeFolder("XDG_RUNTIME_DIR", "run");
    makeFolder("XDG_CONFIG_HOME", "config");
    makeFolder("XDG_CACHE_HOME", "cache");
    makeFolder("XDG_DATA_HOME", "data");
    makeFolder("XDG_STATE_HOME", "state");
    // Neither icon themes nor services nor settings that the machine happens to have.
    makeFolder("XDG_CONFIG_DIRS", "system");
    makeFolder("XDG_DATA_DIRS", "system");
    qputenv("LC_ALL", locale);
    qputenv("TZ", zone);
    qputenv("FONTCONFIG_FILE", QUORVANE_TEST_FONTS);
    qputenv("DBUS_SESSION_BUS_ADDRESS", "disabled:");
    qputenv("QT_QPA_PLATFORM", "offscreen");
}

void TestSession::makeFolder(const char* variable, const char* name) const {
    constexpr auto privateFolder =
        QFileDevice::ReadOwner | QFileDevice::WriteOwner | QFileDevice::ExeOwner;
    const auto path = m_folder.filePath(QString::fromLatin1(name));
    QDir().mkpath(path);
    QFile::setPermissions(path, privateFolder);
    qputenv(variable, QFile::encodeName(path));
}

} // namespace quorvane
