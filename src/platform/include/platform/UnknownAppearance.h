// SPDX-License-Identifier: MIT
#pragma once

#include <platform/Appearance.h>

namespace quorvane {

/// A desktop that tells nothing of how programs should look.
class UnknownAppearance final : public Appearance {
public:
    [[nodiscard]] DesktopAppearance current() const override { return {}; }

    void read() override {}

    void onChanged(std::function<void()>) override {}
};

} // namespace quorvane
