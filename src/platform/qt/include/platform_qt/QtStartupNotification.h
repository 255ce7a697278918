// SPDX-License-Identifier: MIT
#pragma once

#include <platform/StartupNotification.h>

namespace quorvane {

/// By Qt's Wayland plugin, which activates the next window that asks for the focus by the token
/// that it finds in the environment.
class QtStartupNotification final : public StartupNotification {
public:
    void begin(const ActivationToken& token) override;
    void end() override;
};

} // namespace quorvane
