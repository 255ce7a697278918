// SPDX-License-Identifier: MIT
#include <array>
#include <backends/ForcedBackends.h>
#include <utility>

namespace quorvane {

using namespace Qt::StringLiterals;

namespace {

constexpr std::array<std::pair<ChosenService, QStringView>, 6> names{{
    {ChosenService::Clipboard, u"clipboard"},
    {ChosenService::Keys, u"keys"},
    {ChosenService::Shortcut, u"shortcut"},
    {ChosenService::Windows, u"windows"},
    {ChosenService::Panel, u"panel"},
    {ChosenService::Layout, u"layout"},
}};

} // namespace

QString nameOf(ChosenService service) {
    for (const auto& [named, name] : names) {
        if (named == service)
            return name.toString();
    }
    return {};
}

ForcedBackends ForcedBackends::fromText(const QString& text) {
    ForcedBackends forced;
    for (const auto& part : text.split(','_L1, Qt::SkipEmptyParts)) {
        const auto sign = part.indexOf('='_L1);
        if (sign < 0) {
            forced.m_all = part.trimmed();
            continue;
        }
        const auto name = part.left(sign).trimmed();
        for (const auto& [service, known] : names) {
            if (known == name)
                forced.m_each[service] = part.mid(sign + 1).trimmed();
        }
    }
    return forced;
}

std::optional<QString> ForcedBackends::of(ChosenService service) const {
    const auto found = m_each.find(service);
    return found != m_each.end() ? std::optional(found->second) : m_all;
}

} // namespace quorvane
