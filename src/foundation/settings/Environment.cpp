// SPDX-License-Identifier: MIT
#include <settings/Environment.h>

#include <QtGlobal>

namespace quorvane {

Environment processEnvironment() {
    return [](const char* name) -> std::optional<QString> {
        if (!qEnvironmentVariableIsSet(name))
            return std::nullopt;
        return qEnvironmentVariable(name);
    };
}

} // namespace quorvane
