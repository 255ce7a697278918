// SPDX-License-Identifier: MIT
#pragma once

#include <platform/StatusBar.h>

namespace quorvane {

/// A desktop without a place for icons.
class NoStatusBar final : public StatusBar {
public:
    [[nodiscard]] std::unique_ptr<StatusItem> makeStatusItem(const StatusMenu&) override {
        return nullptr;
    }
};

} // namespace quorvane
