// SPDX-License-Identifier: MIT
#include <QtGlobal>

#include <settings/Environment.h>

namespace quorvane {

Environment processEnvironment() {
    return [](const char* name) -> std::optional<QString> {
        if (!qEnvironmentVariableIsSet(name))
            return std::nullopt;
        return qEnvironmentVariable(name);
    };
}

} // namespace quorvane
