// SPDX-License-Identifier: MIT
#include "DesktopAction.h"

#include "AppDelegate.h"

#include <algorithm>
#include <array>

namespace quorvane {

using namespace Qt::StringLiterals;

namespace {

constexpr std::array actions{
    DesktopAction{"toggle"_L1, &AppDelegate::togglePresentation},
    DesktopAction{"insert"_L1, &AppDelegate::performInsert, true},
    DesktopAction{"copy"_L1, &AppDelegate::performCopy, true},
    DesktopAction{"preferences"_L1, &AppDelegate::showPreferences},
    DesktopAction{"quit"_L1, &AppDelegate::terminate},
};

} // namespace

const DesktopAction* desktopAction(QStringView name) {
    const auto* found = std::ranges::find_if(
        actions, [name](const DesktopAction& action) { return name == action.name; });
    return found == actions.end() ? nullptr : found;
}

} // namespace quorvane
