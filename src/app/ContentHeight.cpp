// SPDX-License-Identifier: MIT
#include "ContentHeight.h"

#include <QLayout>
#include <QWidget>

namespace quorvane {

int fittingHeight(QWidget& content, int width) {
    content.ensurePolished();
    const auto* layout = content.layout();
    return layout != nullptr && layout->hasHeightForWidth() ? layout->heightForWidth(width)
                                                            : content.sizeHint().height();
}

} // namespace quorvane
