// SPDX-License-Identifier: MIT
#include "BoundCommands.h"

#include "GVariantText.h"

#include <algorithm>

namespace quorvane {

namespace {

using namespace Qt::StringLiterals;

/// "SCHEMA KEY VALUE", as each line has it.
struct Setting {
    QStringView key;
    QStringView value;
};

std::vector<Setting> settingsIn(QStringView lines) {
    std::vector<Setting> settings;
    for (const auto line : lines.split(u'\n')) {
        const auto keyStart = line.indexOf(u' ') + 1;
        const auto keyEnd = line.indexOf(u' ', keyStart);
        if (keyStart > 0 && keyEnd > 0)
            settings.push_back({line.mid(keyStart, keyEnd - keyStart), line.mid(keyEnd + 1)});
    }
    return settings;
}

/// "switch-to-workspace-left" as a phrase. The desktop's own words for it are nowhere to be read.
QString phrase(QStringView key) {
    auto words = key.toString();
    if (words.endsWith("-static"_L1))
        words.chop(7);
    words.replace(u'-', u' ');
    return words.left(1).toUpper() + words.mid(1);
}

QStringList acceleratorsIn(QStringView value) {
    if (const auto several = gvarianttext::strings(value))
        return *several;
    const auto one = gvarianttext::string(value);
    return one ? QStringList(*one) : QStringList();
}

QString stringOf(const std::vector<Setting>& settings, QStringView key) {
    const auto setting = std::ranges::find(settings, key, &Setting::key);
    return setting == settings.end() ? QString()
                                     : gvarianttext::string(setting->value).value_or(QString());
}

} // namespace

void BoundCommands::addList(QStringView lines) {
    for (const auto& setting : settingsIn(lines)) {
        if (setting.key == "custom-keybindings"_L1) {
            m_customPaths = gvarianttext::strings(setting.value);
            continue;
        }
        for (const auto& accelerator : acceleratorsIn(setting.value))
            m_others.push_back({accelerator, phrase(setting.key)});
    }
}

void BoundCommands::addCustom(const QString& path, QStringView lines) {
    const auto settings = settingsIn(lines);
    const auto accelerator = stringOf(settings, u"binding");
    if (path == m_ownPath)
        m_own = accelerator;
    else
        m_others.push_back({accelerator, stringOf(settings, u"name")});
}

} // namespace quorvane
