// SPDX-License-Identifier: MIT
#pragma once

#include <platform/KeyboardLayout.h>

namespace quorvane {

/// A keyboard that knows no key but the default shortcut's, and never changes.
class SampleKeyboard final : public KeyboardLayout {
public:
    [[nodiscard]] std::optional<std::u16string> characters(std::uint16_t keyCode) const override;
    void onChanged(std::function<void()> handler) override;
};

} // namespace quorvane
