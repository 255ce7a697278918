// SPDX-License-Identifier: MIT
#include "IcuText.h"

namespace quorvane {

icu::UnicodeString toIcu(QStringView text) {
    return {text.utf16(), static_cast<int32_t>(text.size())};
}

QString fromIcu(const icu::UnicodeString& text) {
    return QStringView(text.getBuffer(), text.length()).toString();
}

} // namespace quorvane
