// SPDX-License-Identifier: MIT
#include "OutputFont.h"

#include <controls/TextStyle.h>

#include <QFontDatabase>

namespace quorvane {

QFont outputFont(const QFont& body) {
    auto font = textFont(body, TextStyle::Callout);
    font.setFamily(QFontDatabase::systemFont(QFontDatabase::FixedFont).family());
    return font;
}

} // namespace quorvane
