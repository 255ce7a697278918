// SPDX-License-Identifier: MIT
#include "SampleKeyboard.h"

#include <platform/KeyCodes.h>

namespace quorvane {

std::optional<std::u16string> SampleKeyboard::characters(std::uint16_t keyCode) const {
    return keyCode == keycode::d ? u"d" : u"";
}

void SampleKeyboard::onChanged(std::function<void()> /*handler*/) {
}

} // namespace quorvane
